// Texts of any bytes as numbers. The first byte says how the user writes numbers.
#include <charconv>
#include <cmath>
#include <cstdint>
#include <optional>
#include <string>

#include "base/RuntimeError.h"
#include "fuzz/Require.h"
#include "machine/simulated/Machine.h"
#include "platform/Numbers.h"
#include "tests/ReferenceCheck.h"

namespace {

bool IsSame(const std::optional<double>& one, const std::optional<double>& other) {
  return one.has_value() == other.has_value() && (!one || *one == *other);
}

// The value of digits with at most one point between them, which every user writes alike but for
// the point.
std::optional<double> PlainValue(const std::string& text, char point) {
  std::string plain = text;
  size_t points = 0;
  for (char& c : plain) {
    if (c == point && points++ == 0) {
      c = '.';
    } else if (c < '0' || c > '9') {
      return std::nullopt;
    }
  }
  if (plain.empty() || plain == ".") return std::nullopt;
  double value = 0;
  const auto end = plain.data() + plain.size();
  const auto parsed = std::from_chars(plain.data(), end, value);
  return parsed.ec == std::errc() && parsed.ptr == end ? std::optional(value) : std::nullopt;
}

std::optional<int32_t> WholeOf(double number) {
  try {
    return Reference::Whole(number);
  } catch (const Reference::Unreadable&) {
    return std::nullopt;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size == 0) return 0;
  const std::string text(reinterpret_cast<const char*>(data) + 1, size - 1);
  Simulated::Machine machine;
  const bool hasComma = data[0] & 1;
  if (hasComma) machine.locale.SetSeparators(",", ".");

  const auto number = Platform::ParseNumber(text);
  // The short way for plain digits gives what the system's parser gives.
  Require(IsSame(number, Platform::ParseLocaleNumber(text)));
  if (const auto plain = PlainValue(text, hasComma ? ',' : '.')) Require(IsSame(number, plain));
  if (number) {
    Require(!std::isnan(*number));
    Require(IsSame(number, Platform::ParseNumber("  " + text + " ")));
  }

  const auto wanted = number ? WholeOf(*number) : std::nullopt;
  try {
    const int32_t whole = Platform::ParseInt32(text);
    Require(wanted == whole);
  } catch (const RuntimeError& error) {
    Require(!wanted);
    Require(error.number() == (number ? RuntimeError::Overflow : RuntimeError::TypeMismatch));
  }
  return 0;
}
