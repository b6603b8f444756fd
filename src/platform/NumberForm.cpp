#include "platform/NumberForm.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <limits>

namespace Platform {

namespace {

constexpr double Infinite = std::numeric_limits<double>::infinity();

// Takes a number apart from its start to its end.
class NumberScanner {
 public:
  NumberScanner(std::string_view text, const NumberForm& form) : rest_(text), form_(form) {}

  std::optional<double> Scan() {
    SkipSpace();
    ScanPrefixes();
    if (!hasCurrency_ && Take("&")) return ScanRadix();
    if (!ScanDigits()) return std::nullopt;
    if (!ScanExponent()) return std::nullopt;
    ScanSuffixes(true);
    if (!IsAtEnd()) return std::nullopt;
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
    const size_t count = std::min(rest_.find_first_not_of(" \t\n\v\f\r\xA0"), rest_.size());
    rest_.remove_prefix(count);
    return count > 0;
  }

  // What may stand before the digits: each of these once, in any order, with blanks between them.
  void ScanPrefixes() {
    const auto takeOnce = [this](std::string_view token, bool& isTaken) {
      return !isTaken && (isTaken = Take(token));
    };
    while (takeOnce("-", hasMinus_) || takeOnce("+", hasPlus_) || takeOnce("(", hasOpening_) ||
           takeOnce(form_.currency, hasCurrency_) || SkipSpace()) {
    }
    isNegative_ = hasMinus_ || hasOpening_;
  }

  // What may stand behind the digits, as often as it likes; but not the sign that stood before
  // them.
  void ScanSuffixes(bool isDecimal) {
    for (;;) {
      if (!hasMinus_ && Take("-")) {
        isNegative_ = true;
      } else if (hasOpening_ && Take(")")) {
        hasClosing_ = true;
      } else if (!(!hasPlus_ && Take("+")) && !SkipSpace() &&
                 !(isDecimal && (Take(form_.currency) || Take(form_.thousands)))) {
        return;
      }
    }
  }

  bool IsAtEnd() const { return rest_.empty() && hasOpening_ == hasClosing_; }

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
      if (!hasPoint && Take(form_.decimal)) {
        hasPoint = true;
        digits_ += '.';
      } else if ((!hasDigits && !hasPoint) || !Take(form_.thousands)) {
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
    ScanSuffixes(false);
    if (!IsAtEnd()) return std::nullopt;
    errno = 0;
    const unsigned long long value = std::strtoull(number.c_str(), nullptr, radix);
    // They stand for 32 bits with a sign; but only the lowest of the negative numbers is taken.
    constexpr unsigned long long SignBit = 0x80000000;
    if (errno != 0 || value > SignBit) return Infinite;
    if (value == SignBit) return -static_cast<double>(value);
    return static_cast<double>(value);  // whatever sign stands beside it
  }

  std::string_view rest_;
  const NumberForm& form_;
  std::string digits_;
  bool isNegative_ = false;
  bool hasMinus_ = false;
  bool hasPlus_ = false;
  bool hasOpening_ = false;
  bool hasClosing_ = false;
  bool hasCurrency_ = false;
};

}  // namespace

std::optional<double> ParseNumberIn(const NumberForm& form, std::string_view text) {
  return NumberScanner(text, form).Scan();
}

}  // namespace Platform
