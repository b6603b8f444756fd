#include "platform/LetterCase.h"

#include "machine/win32/System.h"

namespace Platform {

std::string LowerCase(std::string_view text) {
  std::string lower(text);
  CharLowerBuffA(lower.data(), static_cast<DWORD>(lower.size()));
  return lower;
}

}  // namespace Platform
