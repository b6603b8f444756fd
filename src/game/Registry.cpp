#include "game/Registry.h"

#include <cstdint>
#include <string_view>

namespace Registry {

namespace {

constexpr size_t LongestValue = 1024;

// The number that bytes stand for, the lowest first, in decimal. As in hexadecimal notation, four
// bytes stand for a signed number: FFFFFFFF is -1. Empty if there are none, or more than fit.
std::string NumberText(std::string_view bytes) {
  uint64_t number = 0;
  if (bytes.empty()) return "";
  for (size_t i = bytes.size(); i-- > 0;) {
    if (number > 0xFFFFFF) return "";
    number = number << 8 | static_cast<unsigned char>(bytes[i]);
  }
  return std::to_string(static_cast<int32_t>(static_cast<uint32_t>(number)));
}

std::string AsText(const Platform::RegistryValue& value) {
  switch (value.type) {
    case Platform::RegistryType::String:
      // Most writers count the NUL at the end as a part of the text, some do not.
      return value.bytes.ends_with('\0') ? value.bytes.substr(0, value.bytes.size() - 1)
                                         : value.bytes;
    case Platform::RegistryType::Number: return NumberText(value.bytes);
    case Platform::RegistryType::Other: break;
  }
  return "";
}

}  // namespace

std::string ReadRegistryValue(Platform::RegistryRoot root, const std::string& subkey,
                              const std::string& name) {
  using Platform::RegistryView;
  // Chosen once for the whole entry. Asked value by value, a copy of the game in each view would
  // give the folder of one and the version of the other.
  const auto view = Platform::HasRegistryKey(root, RegistryView::Of32Bit, subkey)
                        ? RegistryView::Of32Bit
                        : RegistryView::Of64Bit;
  const auto value = Platform::QueryRegistryValue(root, view, subkey, name, LongestValue);
  return value ? AsText(*value) : "";
}

}  // namespace Registry
