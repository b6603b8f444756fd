#include "platform/Numbers.h"

#include "base/Maths.h"
#include "base/RuntimeError.h"

namespace Platform {

std::optional<double> ParseNumber(std::string_view text) {
  // The short cut first: see ParsePlainInteger for what it saves.
  int32_t plain = 0;
  if (ParsePlainInteger(text, plain)) return plain;
  return ParseLocaleNumber(text);
}

int32_t ParseInt32(std::string_view text) {
  const auto whole = ParseWhole(text);
  if (!whole) throw RuntimeError(RuntimeError::TypeMismatch);
  return *whole;
}

bool ParseLocaleWhole(std::string_view text, int32_t& value) {
  const auto number = ParseLocaleNumber(text);
  if (number) value = Maths::ToInt32(*number);
  return number.has_value();
}

}  // namespace Platform
