// The registry of the simulated machine.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <tuple>

#include "platform/Registry.h"

namespace Simulated {

class Registry {
 public:
  // Values as they are stored: a string's final NUL is there only if the bytes have one.
  void Put(Platform::RegistryRoot root, Platform::RegistryView view, const std::string& subkey,
           const std::string& name, const Platform::RegistryValue& value);
  void PutString(Platform::RegistryRoot root, Platform::RegistryView view,
                 const std::string& subkey, const std::string& name, const std::string& bytes);
  void PutNumber(Platform::RegistryRoot root, Platform::RegistryView view,
                 const std::string& subkey, const std::string& name, uint32_t number);
  void PutOther(Platform::RegistryRoot root, Platform::RegistryView view, const std::string& subkey,
                const std::string& name, const std::string& bytes);
  void Delete(Platform::RegistryRoot root, Platform::RegistryView view, const std::string& subkey,
              const std::string& name);

  // For the service. A key is there if a value stands in it or below it.
  bool HasKey(Platform::RegistryRoot root, Platform::RegistryView view,
              const std::string& subkey) const;
  std::optional<Platform::RegistryValue> Find(Platform::RegistryRoot root,
                                              Platform::RegistryView view,
                                              const std::string& subkey,
                                              const std::string& name) const;

 private:
  using Place =
      std::tuple<Platform::RegistryRoot, Platform::RegistryView, std::string, std::string>;
  static Place PlaceOf(Platform::RegistryRoot root, Platform::RegistryView view,
                       const std::string& subkey, const std::string& name);

  std::map<Place, Platform::RegistryValue> values_;
};

}  // namespace Simulated
