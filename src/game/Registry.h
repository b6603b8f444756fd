// Values of the registry as texts.
#pragma once

#include <string>

#include "platform/Registry.h"

namespace Registry {

// The value as text: a string as it stands, without the NUL at its end if it has one; a 32-bit
// number in decimal, signed, whatever number of bytes it is stored in. Empty if the value is
// missing, may not be read, is of another type, or is longer than 1024 bytes.
// All values of a key come from one view of the registry: that of 32 bits if the key is there, and
// otherwise that of 64 bits. What the game's 32-bit installer writes lies in the former on 64-bit
// Windows; values of two installations are never mixed.
std::string ReadRegistryValue(Platform::RegistryRoot root, const std::string& subkey,
                              const std::string& name);

}  // namespace Registry
