#include "platform/LetterCase.h"

#include "machine/simulated/Disk.h"

namespace Platform {

std::string LowerCase(std::string_view text) {
  return Simulated::FoldCase(text);
}

}  // namespace Platform
