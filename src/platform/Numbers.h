// Numbers as users write them, by the rules of the user's locale. There is no other parser in the
// program, so that every window and every checker takes the same texts for numbers.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace Platform {

// The number that a text in the system code page stands for, or nothing if it is no number.
// Accepted are blanks around it, a sign before or behind it, the locale's decimal separator,
// thousands separators and currency sign, an exponent, parentheses for a negative number, and
// "&H" and "&O" for hexadecimal and octal digits. A number beyond a double's range is infinite.
std::optional<double> ParseNumber(std::string_view text);

// The number converted to a whole one, halves to even; nothing if the text is no number.
// Fails with RuntimeError Overflow if it does not fit 32 bits.
std::optional<int32_t> ParseWhole(std::string_view text);

// The same for a text that must be a number. Fails with RuntimeError TypeMismatch if it is none.
int32_t ParseInt32(std::string_view text);

// The system's own parser, behind the others. Called only for texts that are not plain decimal
// digits, which mean the same in every locale. Fails with RuntimeError DeviceError only
// where the system lacks it.
std::optional<double> ParseLocaleNumber(std::string_view text);

// The two ways of ParseWhole. Both return false if the text is no number to them.

// By the system's parser. Fails with RuntimeError Overflow.
bool ParseLocaleWhole(std::string_view text, int32_t& value);

// Up to nine digits, with or without "-" before them. Nearly every line of a track or vehicle file
// is such a text, and the system's parser takes a hundred times as long for it.
inline bool ParsePlainInteger(std::string_view text, int32_t& value) {
  const bool isNegative = text.starts_with('-');
  if (isNegative) text.remove_prefix(1);
  if (text.empty() || text.size() > 9) return false;
  value = 0;
  for (const char c : text) {
    const unsigned digit = static_cast<unsigned char>(c) - '0';
    if (digit > 9) return false;
    value = value * 10 + static_cast<int32_t>(digit);
  }
  if (isNegative) value = -value;
  return true;
}

// The value is no optional until both ways have met: compilers keep it in a register then.
inline std::optional<int32_t> ParseWhole(std::string_view text) {
  int32_t value = 0;
  if (ParsePlainInteger(text, value) || ParseLocaleWhole(text, value)) return value;
  return std::nullopt;
}

}  // namespace Platform
