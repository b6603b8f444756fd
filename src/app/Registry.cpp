#include "app/Registry.h"

#include <cstdint>
#include <cstring>

namespace Registry {

namespace {

constexpr size_t LongestValue = 1024;

std::string AsText(const Platform::RegistryValue& value) {
  switch (value.type) {
    case Platform::RegistryType::String:
      return value.bytes.ends_with('\0') ? value.bytes.substr(0, value.bytes.size() - 1)
                                         : value.bytes;
    case Platform::RegistryType::Number: {
      // Hexadecimal notation stands for a signed number: FFFFFFFF is -1.
      int32_t number = 0;
      if (value.bytes.size() != sizeof number) return "";
      std::memcpy(&number, value.bytes.data(), sizeof number);
      return std::to_string(number);
    }
    case Platform::RegistryType::Other: break;
  }
  return "";
}

}  // namespace

std::string ReadRegistryValue(Platform::RegistryRoot root, const std::string& subkey,
                              const std::string& name) {
  for (const auto view : {Platform::RegistryView::Of32Bit, Platform::RegistryView::Of64Bit}) {
    if (const auto value = Platform::QueryRegistryValue(root, view, subkey, name, LongestValue)) {
      return AsText(*value);
    }
  }
  return "";
}

}  // namespace Registry
