#include "platform/Characters.h"

#include "machine/simulated/Machine.h"

namespace Platform {

bool IsLeadByte(char byte) {
  return Simulated::TheMachine().locale.IsLeadByte(byte);
}

}  // namespace Platform
