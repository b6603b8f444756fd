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

// The number converted to a whole one, halves to even.
//   text   must be a number.
// Fails with RuntimeError TypeMismatch if it is none, Overflow if it does not fit 32 bits.
int32_t ParseInt32(std::string_view text);

// The system's own parser, behind the two above. Called only for texts that are not plain decimal
// digits, which mean the same in every locale.
std::optional<double> ParseLocaleNumber(std::string_view text);

}  // namespace Platform
