#include "platform/Numbers.h"

#include "platform/NumberForm.h"

namespace Platform {

// In the neutral form, whatever the user's locale is: a file is judged alike wherever it is judged.
std::optional<double> ParseLocaleNumber(std::string_view text) {
  return ParseNumberIn({}, text);
}

}  // namespace Platform
