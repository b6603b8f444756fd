#include "platform/Registry.h"

#include "machine/win32/System.h"

namespace Platform {

namespace {

class RegistryKey {
 public:
  // For querying only: whoever may read the game's entry need not be allowed to change it.
  RegistryKey(RegistryRoot root, RegistryView view, const std::string& subkey) {
    const HKEY from = root == RegistryRoot::LocalMachine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
    const REGSAM part = view == RegistryView::Of32Bit ? KEY_WOW64_32KEY : KEY_WOW64_64KEY;
    if (RegOpenKeyExA(from, subkey.c_str(), 0, KEY_QUERY_VALUE | part, &key_) != ERROR_SUCCESS) {
      key_ = nullptr;
    }
  }
  RegistryKey(const RegistryKey&) = delete;
  RegistryKey& operator=(const RegistryKey&) = delete;
  ~RegistryKey() {
    if (key_) RegCloseKey(key_);
  }
  HKEY get() const { return key_; }

 private:
  HKEY key_ = nullptr;
};

}  // namespace

bool HasRegistryKey(RegistryRoot root, RegistryView view, const std::string& subkey) {
  return RegistryKey(root, view, subkey).get() != nullptr;
}

std::optional<RegistryValue> QueryRegistryValue(RegistryRoot root, RegistryView view,
                                                const std::string& subkey, const std::string& name,
                                                size_t capacity) {
  const RegistryKey key(root, view, subkey);
  if (!key.get()) return std::nullopt;

  RegistryValue value{RegistryType::Other, std::string(capacity, '\0')};
  DWORD type = REG_NONE;
  auto size = static_cast<DWORD>(capacity);
  if (RegQueryValueExA(key.get(), name.c_str(), nullptr, &type,
                       reinterpret_cast<BYTE*>(value.bytes.data()), &size) != ERROR_SUCCESS) {
    return std::nullopt;
  }
  value.bytes.resize(size);
  // Texts with variables to be expanded are other data: as they stand they name no folder.
  if (type == REG_SZ) value.type = RegistryType::String;
  if (type == REG_DWORD) value.type = RegistryType::Number;
  return value;
}

}  // namespace Platform
