// Values of the registry as texts.
#pragma once

#include <string>

#include "platform/Registry.h"

namespace Registry {

// The value as text: a string as it stands, without the NUL at its end if it has one; a 32-bit
// number in decimal, signed, whatever number of bytes it is stored in. Empty if the value is
// missing, may not be read, is of another type, or is longer than 1024 bytes. The 32-bit view of
// the registry is tried first, then the 64-bit one: what the game's 32-bit installer writes lies in
// the former on 64-bit Windows.
std::string ReadRegistryValue(Platform::RegistryRoot root, const std::string& subkey,
                              const std::string& name);

}  // namespace Registry
