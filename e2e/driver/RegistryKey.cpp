#include "e2e/driver/RegistryKey.h"

#include <stdexcept>

namespace E2e {

RegistryKey::RegistryKey(HKEY root, const std::string& path, REGSAM view)
    : root_(root), path_(path), view_(view) {
  DWORD disposition = 0;
  if (RegCreateKeyExA(root, path.c_str(), 0, nullptr, 0, KEY_READ | KEY_WRITE | view, nullptr,
                      &key_, &disposition) != ERROR_SUCCESS) {
    throw std::runtime_error("cannot write the registry key " + path);
  }
  isNew_ = disposition == REG_CREATED_NEW_KEY;
}

RegistryKey::~RegistryKey() {
  for (const auto& [name, value] : before_) {
    if (value) {
      RegSetValueExA(key_, name.c_str(), 0, value->type,
                     reinterpret_cast<const BYTE*>(value->bytes.data()),
                     static_cast<DWORD>(value->bytes.size()));
    } else {
      RegDeleteValueA(key_, name.c_str());
    }
  }
  RegCloseKey(key_);
  if (isNew_) RegDeleteKeyExA(root_, path_.c_str(), view_, 0);
}

void RegistryKey::Remember(const std::string& name) {
  if (before_.contains(name)) return;
  DWORD type = 0;
  DWORD size = 0;
  std::optional<Value>& value = before_[name];
  if (RegQueryValueExA(key_, name.c_str(), nullptr, &type, nullptr, &size) != ERROR_SUCCESS) return;
  value = Value{type, std::string(size, '\0')};
  RegQueryValueExA(key_, name.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(value->bytes.data()),
                   &size);
}

void RegistryKey::Write(const std::string& name, DWORD type, const void* bytes, size_t size) {
  Remember(name);
  if (RegSetValueExA(key_, name.c_str(), 0, type, static_cast<const BYTE*>(bytes),
                     static_cast<DWORD>(size)) != ERROR_SUCCESS) {
    throw std::runtime_error("cannot write to the registry key " + path_);
  }
}

void RegistryKey::Set(const std::string& name, const std::string& text) {
  Write(name, REG_SZ, text.c_str(), text.size() + 1);
}

void RegistryKey::Set(const std::string& name, DWORD number) {
  Write(name, REG_DWORD, &number, sizeof number);
}

void RegistryKey::Remove(const std::string& name) {
  Remember(name);
  RegDeleteValueA(key_, name.c_str());
}

}  // namespace E2e
