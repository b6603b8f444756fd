#include "platform/SideFile.h"

#include "base/Text.h"

namespace Platform {

namespace {

constexpr std::string_view Digits =
    "0123456789abcdefghjkmnpqrstvwxyz";  // no i, l, o, u: look alike
constexpr std::string_view Start = "~";
constexpr std::string_view End = ".sk2";
constexpr int BitsPerDigit = 5;
constexpr int NumberDigits = 2;
constexpr int CheckDigits = 4;
constexpr uint32_t Numbers = 1U << NumberDigits * BitsPerDigit;

std::string InDigits(uint32_t value, int count) {
  std::string digits;
  for (int i = 0; i < count; ++i, value >>= BitsPerDigit) digits += Digits[value % Digits.size()];
  return digits;
}

// Spreads the number over all its bits, the multipliers being odd and large.
uint32_t CheckOf(uint32_t number) {
  uint32_t mixed = (number + 0x534B3250U) * 0x9E3779B1U;
  mixed ^= mixed >> 15;
  mixed *= 0x85EBCA77U;
  return mixed >> (32 - CheckDigits * BitsPerDigit);
}

}  // namespace

std::string SideFileName(uint32_t number) {
  number %= Numbers;
  return std::string(Start) + InDigits(number, NumberDigits) +
         InDigits(CheckOf(number), CheckDigits) + std::string(End);
}

bool IsSideFileName(std::string_view name) {
  if (name.size() != Start.size() + NumberDigits + CheckDigits + End.size()) return false;
  const std::string lower = Text::LowerAscii(name);
  uint32_t number = 0;
  for (int i = NumberDigits; i-- > 0;) {
    const size_t digit = Digits.find(lower[Start.size() + static_cast<size_t>(i)]);
    if (digit == std::string_view::npos) return false;
    number = number << BitsPerDigit | static_cast<uint32_t>(digit);
  }
  return lower == SideFileName(number);
}

SystemError MakeSideFile(const std::string& folder, OpenFile& file, std::string& path) {
  // A name that is refused may be that of a deleted file which someone still has open, so a refusal
  // counts only when it comes twice.
  constexpr int RefusalsThatCount = 2;
  static uint32_t next = 0;
  SystemError error = SystemError::None;
  int refusals = 0;
  for (uint32_t tries = 0; tries < Numbers && refusals < RefusalsThatCount; ++tries) {
    path = folder + "\\" + SideFileName(next++);
    error = file.Open(path, OpenFile::How::New);
    if (error == SystemError::None) return error;
    if (error != SystemError::FileExists && error != SystemError::AlreadyExists) ++refusals;
  }
  return error;
}

void RemoveAbandonedSideFiles(const std::string& folder) {
  std::vector<FolderEntry> entries;
  if (FileCalls::List(folder, entries) != SystemError::None) return;
  for (const FolderEntry& entry : entries) {
    // One that another copy of the pack is writing is held open, and cannot be deleted.
    if (!entry.isFolder && IsSideFileName(entry.name)) {
      FileCalls::Delete(folder + "\\" + entry.name);
    }
  }
}

}  // namespace Platform
