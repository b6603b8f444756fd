#include "platform/Numbers.h"

#include "base/Maths.h"
#include "base/RuntimeError.h"

namespace Platform {

namespace {

// Nearly every line of a track or vehicle file is a short whole number; the system's parser takes
// a hundred times as long for one. The value of a text of up to nine digits with or without "-".
std::optional<int32_t> ParsePlainInteger(std::string_view text) {
  const bool isNegative = text.starts_with('-');
  if (isNegative) text.remove_prefix(1);
  if (text.empty() || text.size() > 9) return std::nullopt;
  int32_t value = 0;
  for (const char c : text) {
    const unsigned digit = static_cast<unsigned char>(c) - '0';
    if (digit > 9) return std::nullopt;
    value = value * 10 + static_cast<int32_t>(digit);
  }
  return isNegative ? -value : value;
}

}  // namespace

std::optional<double> ParseNumber(std::string_view text) {
  if (const auto plain = ParsePlainInteger(text)) return *plain;
  return ParseLocaleNumber(text);
}

int32_t ParseInt32(std::string_view text) {
  if (const auto plain = ParsePlainInteger(text)) return *plain;
  const auto number = ParseLocaleNumber(text);
  if (!number) throw RuntimeError(RuntimeError::TypeMismatch);
  return Maths::ToInt32(*number);
}

}  // namespace Platform
