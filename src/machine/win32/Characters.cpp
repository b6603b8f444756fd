#include "platform/Characters.h"

#include "machine/win32/System.h"

namespace Platform {

bool IsLeadByte(char byte) {
  return IsDBCSLeadByte(static_cast<BYTE>(byte)) != 0;
}

}  // namespace Platform
