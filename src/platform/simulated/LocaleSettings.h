// The user's number format on the simulated machine.
#pragma once

#include <string>

namespace Simulated {

struct LocaleSettings {
  std::string decimal = ".";
  std::string thousands = ",";
  std::string currency = "$";

  void SetSeparators(const std::string& newDecimal, const std::string& newThousands) {
    decimal = newDecimal;
    thousands = newThousands;
  }
};

}  // namespace Simulated
