// The rules of the two checkers in one pass over blocks of the file, written as directly as they
// can be: a track byte by byte, a vehicle line by line. They know plain decimal numbers in good
// files only, and say nothing but whether the file is good.
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace PlainReaders {

// Calls the function with each byte of the file until it returns false.
template <class TakeByte>
bool ReadBytes(const std::string& path, TakeByte takeByte) {
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"),
                                                             std::fclose);
  if (!file) return false;
  static char block[1 << 16];
  for (size_t size; (size = std::fread(block, 1, sizeof block, file.get())) > 0;) {
    for (size_t i = 0; i < size; ++i) {
      if (!takeByte(block[i])) return false;
    }
  }
  return true;
}

inline bool IsGoodTrack(const std::string& path) {
  int position = 1;
  int32_t value = 0;
  int digits = 0;
  bool isNegative = false;
  bool afterCr = false;
  const bool isRead = ReadBytes(path, [&](char byte) {
    const unsigned digit = static_cast<unsigned char>(byte) - '0';
    if (digit <= 9) {
      value = value * 10 + static_cast<int32_t>(digit);
      afterCr = false;
      return ++digits <= 9 || position > 5;
    }
    if (byte == '\n' && afterCr) return !(afterCr = false);
    if (byte == '-' && digits == 0 && !isNegative) return isNegative = true;
    if (byte != '\r' || digits == 0) return position > 5;
    if (isNegative) value = -value;
    if (position == 4 && value != -1) position = 1;
    bool isGood = true;
    switch (position) {
      case 1: isGood = value >= 0 && value <= 12; break;
      case 2: isGood = value >= 0 && value <= 3; break;
      case 3: isGood = value >= 5000; break;
      case 5: isGood = value >= 0 && value <= 1; break;
    }
    ++position;
    value = digits = 0;
    isNegative = false;
    afterCr = true;
    return isGood;
  });
  return isRead && position >= 5;
}

// Calls the function with each line of the file, without its end, until it returns false. A line
// must end in CR LF or CR and be shorter than a block.
template <class TakeLine>
bool ReadLines(const std::string& path, TakeLine takeLine) {
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"),
                                                             std::fclose);
  if (!file) return false;
  static char block[1 << 16];
  size_t kept = 0;  // the bytes of a line that has begun
  bool afterCr = false;
  while (const size_t size = std::fread(block + kept, 1, sizeof block - kept, file.get())) {
    const char* line = block;
    const char* const end = block + kept + size;
    if (std::exchange(afterCr, false) && *line == '\n') ++line;
    while (const void* found = std::memchr(line, '\r', static_cast<size_t>(end - line))) {
      const char* const cr = static_cast<const char*>(found);
      if (!takeLine(std::string_view(line, static_cast<size_t>(cr - line)))) return false;
      line = cr + 1;
      afterCr = line == end;
      if (!afterCr && *line == '\n') ++line;
    }
    kept = static_cast<size_t>(end - line);
    std::memmove(block, line, kept);
  }
  return kept == 0;
}

inline bool IsGoodSound(int variable, std::string_view value) {
  if (value == "car1" || value == "car2") return true;
  if (variable == 1) return false;
  return value == "car3" || value == "car4" || value == "cycle1" || value == "cycle2";
}

inline bool IsGoodNumber(int variable, std::string_view value) {
  const bool isNegative = value.starts_with('-');
  if (isNegative) value.remove_prefix(1);
  if (value.empty() || value.size() > 9) return false;
  int32_t number = 0;
  for (const char digit : value) {
    if (digit < '0' || digit > '9') return false;
    number = number * 10 + (digit - '0');
  }
  if (isNegative) number = -number;
  if (variable == 12) return number >= 1 && number <= 100;
  return variable != 13 || (number >= 0 && number <= 1);
}

inline bool IsGoodVehicle(const std::string& path) {
  static constexpr std::string_view Names[] = {
      "enginesound",   "throttlesound", "startsound",     "hornsound", "acceleration",
      "deceleration",  "skidrun",       "idlefreq",       "topfreq",   "shiftfreq",
      "numberofgears", "steering",      "steeringfactor", "haswipers"};
  return ReadLines(path, [](std::string_view line) {
    const size_t equals = line.find('=');
    if (equals == std::string_view::npos) return false;
    const std::string_view name = line.substr(0, equals);
    std::string_view value = line.substr(equals + 1);
    value = value.substr(0, value.find('='));
    int variable = 0;
    while (variable < 14 && Names[variable] != name) ++variable;
    if (variable == 14) return false;
    return variable < 4 ? IsGoodSound(variable, value) : IsGoodNumber(variable, value);
  });
}

}  // namespace PlainReaders
