// The number parser of Windows, with the user's separators, as its contract test pins it down.
#include "platform/Numbers.h"

#include <cerrno>
#include <cstdlib>
#include <limits>
#include <string>

#include "platform/simulated/Machine.h"

namespace Platform {

namespace {

constexpr double Infinite = std::numeric_limits<double>::infinity();

// Takes a number apart from its start to its end.
class NumberScanner {
 public:
  NumberScanner(std::string_view text, const Simulated::LocaleSettings& locale)
      : rest_(text), locale_(locale) {}

  std::optional<double> Scan() {
    SkipSpace();
    ScanPrefixes();
    if (Take("&")) return ScanRadix();
    if (!ScanDigits()) return std::nullopt;
    if (!ScanExponent()) return std::nullopt;
    ScanSuffixes();
    if (!rest_.empty() || isOpen_) return std::nullopt;
    const double value = std::strtod(digits_.c_str(), nullptr);
    return isNegative_ ? -value : value;
  }

 private:
  bool Take(std::string_view token) {
    if (token.empty() || !rest_.starts_with(token)) return false;
    rest_.remove_prefix(token.size());
    return true;
  }

  bool SkipSpace() {
    const size_t count = std::min(rest_.find_first_not_of(" \t\n\v\f\r"), rest_.size());
    rest_.remove_prefix(count);
    return count > 0;
  }

  bool TakeSign() {
    if (hasSign_ || (!rest_.starts_with('-') && !rest_.starts_with('+'))) return false;
    isNegative_ = isNegative_ || rest_.front() == '-';
    hasSign_ = rest_.front() == '-';
    rest_.remove_prefix(1);
    return true;
  }

  bool TakeOpening() {
    if (isOpen_ || !Take("(")) return false;
    return isNegative_ = isOpen_ = true;
  }

  bool TakeCurrency() {
    if (hasCurrency_ || !Take(locale_.currency)) return false;
    return hasCurrency_ = true;
  }

  void ScanPrefixes() {
    while (TakeSign() || TakeOpening() || TakeCurrency() || SkipSpace()) {
    }
  }

  void ScanSuffixes() {
    for (;;) {
      if (isOpen_ && Take(")")) {
        isOpen_ = false;
        continue;
      }
      if (!TakeSign() && !TakeCurrency() && !SkipSpace()) return;
    }
  }

  bool TakeDigits() {
    const size_t count = std::min(rest_.find_first_not_of("0123456789"), rest_.size());
    digits_.append(rest_.substr(0, count));
    rest_.remove_prefix(count);
    return count > 0;
  }

  // Digits with thousands separators between and behind them, and at most one decimal separator.
  bool ScanDigits() {
    bool hasDigits = TakeDigits();
    bool hasPoint = false;
    for (;;) {
      if (!hasPoint && Take(locale_.decimal)) {
        hasPoint = true;
        digits_ += '.';
      } else if (!hasDigits || !Take(locale_.thousands)) {
        return hasDigits;
      }
      hasDigits = TakeDigits() || hasDigits;
    }
  }

  // An exponent, if there is one. False if there is the beginning of one only.
  bool ScanExponent() {
    if (!Take("e") && !Take("E")) return true;
    digits_ += 'e';
    if (Take("-")) {
      digits_ += '-';
    } else {
      Take("+");
    }
    return TakeDigits();
  }

  std::optional<double> ScanRadix() {
    const int radix = Take("H") || Take("h") ? 16 : Take("O") || Take("o") ? 8 : 0;
    const char* const digits = radix == 16 ? "0123456789abcdefABCDEF" : "01234567";
    const size_t count = std::min(rest_.find_first_not_of(digits), rest_.size());
    if (radix == 0 || count == 0) return std::nullopt;
    const std::string number(rest_.substr(0, count));
    rest_.remove_prefix(count);
    ScanSuffixes();
    if (!rest_.empty()) return std::nullopt;
    errno = 0;
    const unsigned long long value = std::strtoull(number.c_str(), nullptr, radix);
    if (errno != 0 || value > std::numeric_limits<int32_t>::max()) return Infinite;
    return static_cast<double>(value);
  }

  std::string_view rest_;
  const Simulated::LocaleSettings& locale_;
  std::string digits_;
  bool isNegative_ = false;
  bool isOpen_ = false;
  bool hasSign_ = false;
  bool hasCurrency_ = false;
};

}  // namespace

std::optional<double> ParseLocaleNumber(std::string_view text) {
  return NumberScanner(text, Simulated::TheMachine().locale).Scan();
}

}  // namespace Platform
