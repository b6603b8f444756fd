// A registry key that a test writes, and that is afterwards as it was.
#pragma once

#include <windows.h>

#include <map>
#include <optional>
#include <string>

namespace E2e {

class RegistryKey {
 public:
  // Makes the key if there is none.
  //   view  KEY_WOW64_32KEY or KEY_WOW64_64KEY.
  // Throws std::runtime_error if it cannot be written.
  RegistryKey(HKEY root, const std::string& path, REGSAM view);
  // Puts back what was there.
  ~RegistryKey();
  RegistryKey(const RegistryKey&) = delete;
  RegistryKey& operator=(const RegistryKey&) = delete;

  // Sets a text; the name "" is the key's default value.
  void Set(const std::string& name, const std::string& text);
  void Set(const std::string& name, DWORD number);
  void Remove(const std::string& name);

 private:
  struct Value {
    DWORD type;
    std::string bytes;
  };
  void Remember(const std::string& name);
  void Write(const std::string& name, DWORD type, const void* bytes, size_t size);

  HKEY root_;
  std::string path_;
  REGSAM view_;
  HKEY key_ = nullptr;
  bool isNew_ = false;
  std::map<std::string, std::optional<Value>> before_;
};

}  // namespace E2e
