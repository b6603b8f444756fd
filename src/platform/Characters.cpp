#include "platform/Characters.h"

#include <algorithm>

namespace Platform {

size_t CharacterLength(std::string_view text) {
  return std::max<size_t>(WholeCharacterLength(text), 1);
}

}  // namespace Platform
