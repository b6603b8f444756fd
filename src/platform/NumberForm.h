// The number parser of Windows, as its contract test pins it down, for machines that have none of
// their own.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace Platform {

// How numbers are written: as in the neutral locale unless told otherwise.
struct NumberForm {
  std::string decimal = ".";
  std::string thousands = ",";
  std::string currency = "$";
};

// What ParseNumber of Numbers.h promises, in that form.
std::optional<double> ParseNumberIn(const NumberForm& form, std::string_view text);

}  // namespace Platform
