// The user's number format, code page and time zone on the simulated machine.
#pragma once

#include <string>

#include "platform/NumberForm.h"

namespace Simulated {

struct LocaleSettings {
  Platform::NumberForm numbers;
  // Windows' Western one; 932, 936, 949 or 950, in which a character may take two bytes; or 65001,
  // UTF-8.
  int codePage = 1252;
  // The user's time zone, which knows no summer time.
  int minutesAheadOfUtc = 60;

  void SetSeparators(const std::string& newDecimal, const std::string& newThousands) {
    numbers.decimal = newDecimal;
    numbers.thousands = newThousands;
  }

  // True if the byte is the first of two in a code page of two bytes a character.
  bool IsLeadByte(char byte) const {
    const auto value = static_cast<unsigned char>(byte);
    switch (codePage) {
      case 932: return (value >= 0x81 && value <= 0x9F) || (value >= 0xE0 && value <= 0xFC);
      case 936:
      case 949:
      case 950: return value >= 0x81 && value <= 0xFE;
      default: return false;
    }
  }
};

}  // namespace Simulated
