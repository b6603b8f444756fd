#include "platform/Characters.h"

#include "machine/win32/CodePage.h"
#include "machine/win32/System.h"

namespace Platform {

size_t WholeCharacterLength(std::string_view text) {
  return WholeCharacterLengthIn(GetACP(), text);
}

std::string ToUtf8(std::string_view text) {
  return NarrowTo(CP_UTF8, Widen(text));
}

std::string FromUtf8(std::string_view utf8) {
  return Narrow(WidenFrom(CP_UTF8, utf8));
}

}  // namespace Platform
