// The rules of the two checkers in one pass over blocks of the file, written as directly as they
// can be: one loop over the bytes, no line ever put together. They know plain decimal numbers in
// good files only, and say nothing but whether the file is good.
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string>

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

inline bool IsGoodVehicle(const std::string& path) {
  static const char* const names[] = {
      "enginesound",   "throttlesound", "startsound",     "hornsound", "acceleration",
      "deceleration",  "skidrun",       "idlefreq",       "topfreq",   "shiftfreq",
      "numberofgears", "steering",      "steeringfactor", "haswipers"};
  enum { Name, Value, Rest } state = Name;
  char text[16];  // the name or value so far
  size_t size = 0;
  int variable = 0;
  bool afterCr = false;
  const auto isGoodValue = [&] {
    const auto is = [&](const char* sound) {
      return std::strlen(sound) == size && std::memcmp(sound, text, size) == 0;
    };
    if (variable < 4) {
      if (is("car1") || is("car2")) return true;
      return variable != 1 && (is("car3") || is("car4") || is("cycle1") || is("cycle2"));
    }
    const size_t first = size > 0 && text[0] == '-' ? 1 : 0;
    if (size == first || size - first > 9) return false;
    int32_t number = 0;
    for (size_t i = first; i < size; ++i) {
      const unsigned digit = static_cast<unsigned char>(text[i]) - '0';
      if (digit > 9) return false;
      number = number * 10 + static_cast<int32_t>(digit);
    }
    if (first == 1) number = -number;
    if (variable == 12) return number >= 1 && number <= 100;
    return variable != 13 || (number >= 0 && number <= 1);
  };
  return ReadBytes(path,
                   [&](char byte) {
                     if (byte == '\n' && afterCr) return !(afterCr = false);
                     afterCr = false;
                     if (byte == '\r') {
                       if (state == Name || (state == Value && !isGoodValue())) return false;
                       state = Name;
                       size = 0;
                       return afterCr = true;
                     }
                     if (state == Rest) return true;
                     if (byte != '=') {
                       if (size == sizeof text) return false;
                       text[size++] = byte;
                       return true;
                     }
                     if (state == Value) {
                       state = Rest;
                       return isGoodValue();
                     }
                     for (variable = 0; variable < 14; ++variable) {
                       const char* const name = names[variable];
                       if (std::strlen(name) == size && std::memcmp(name, text, size) == 0) break;
                     }
                     state = Value;
                     size = 0;
                     return variable < 14;
                   }) &&
         state == Name;
}

}  // namespace PlainReaders
