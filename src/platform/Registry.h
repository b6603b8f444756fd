// Values of the system's registry, read only.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace Platform {

enum class RegistryRoot { LocalMachine, CurrentUser };

// Programs of 32 and of 64 bits see different parts of the registry under the same key.
enum class RegistryView { Of32Bit, Of64Bit };

enum class RegistryType { String, Number, Other };

struct RegistryValue {
  RegistryType type;
  std::string bytes;  // as stored: a string with or without a final NUL, a number lowest byte first
};

// True if there is such a key and it may be queried.
bool HasRegistryKey(RegistryRoot root, RegistryView view, const std::string& subkey);

// Opens a key for querying only, reads one value and closes the key again.
//   subkey    path below the root, "\" between keys.
//   capacity  the most bytes that the value may have.
// Nothing if the key or the value is missing, may not be read, or is larger than the capacity.
std::optional<RegistryValue> QueryRegistryValue(RegistryRoot root, RegistryView view,
                                                const std::string& subkey, const std::string& name,
                                                size_t capacity);

}  // namespace Platform
