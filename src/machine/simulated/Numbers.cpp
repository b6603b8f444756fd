#include "platform/Numbers.h"

#include "machine/simulated/Machine.h"
#include "platform/NumberForm.h"

namespace Platform {

std::optional<double> ParseLocaleNumber(std::string_view text) {
  return ParseNumberIn(Simulated::TheMachine().locale.numbers, text);
}

}  // namespace Platform
