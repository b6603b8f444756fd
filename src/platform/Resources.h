// What the running program carries in its own file.
#pragma once

#include <optional>
#include <string>

namespace Platform {

// The type of the resources that are sounds, each a whole wave file.
inline constexpr int SoundResource = 1408;
// The type of those that are any bytes.
inline constexpr int DataResource = 10;

// The bytes of a resource of the running program; nothing if there is none of that type and name.
// The file itself is not read again, so it may have gone meanwhile.
//   name  letter case is ignored. No number, even as text: "#1" is nobody's name.
std::optional<std::string> ReadResource(int type, const std::string& name);

}  // namespace Platform
