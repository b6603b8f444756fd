#include "machine/simulated/Registry.h"

#include "machine/simulated/Machine.h"

namespace Simulated {

using Platform::RegistryRoot;
using Platform::RegistryType;
using Platform::RegistryValue;
using Platform::RegistryView;

void Registry::Put(RegistryRoot root, RegistryView view, const std::string& subkey,
                   const std::string& name, const RegistryValue& value) {
  values_[PlaceOf(root, view, subkey, name)] = value;
}

void Registry::PutString(RegistryRoot root, RegistryView view, const std::string& subkey,
                         const std::string& name, const std::string& bytes) {
  Put(root, view, subkey, name, {RegistryType::String, bytes});
}

void Registry::PutNumber(RegistryRoot root, RegistryView view, const std::string& subkey,
                         const std::string& name, uint32_t number) {
  std::string bytes;
  for (int i = 0; i < 4; ++i) bytes += static_cast<char>(number >> (8 * i));
  Put(root, view, subkey, name, {RegistryType::Number, bytes});
}

void Registry::PutOther(RegistryRoot root, RegistryView view, const std::string& subkey,
                        const std::string& name, const std::string& bytes) {
  Put(root, view, subkey, name, {RegistryType::Other, bytes});
}

void Registry::Delete(RegistryRoot root, RegistryView view, const std::string& subkey,
                      const std::string& name) {
  values_.erase(PlaceOf(root, view, subkey, name));
}

bool Registry::HasKey(RegistryRoot root, RegistryView view, const std::string& subkey) const {
  const auto [ofRoot, ofView, key, unused] = PlaceOf(root, view, subkey, "");
  // A key is there if there is a value in it, or in one below it.
  for (const auto& [place, value] : values_) {
    const std::string& known = std::get<2>(place);
    if (std::get<0>(place) == ofRoot && std::get<1>(place) == ofView &&
        (known == key || known.starts_with(key + "\\"))) {
      return true;
    }
  }
  return false;
}

std::optional<RegistryValue> Registry::Find(RegistryRoot root, RegistryView view,
                                            const std::string& subkey,
                                            const std::string& name) const {
  const auto found = values_.find(PlaceOf(root, view, subkey, name));
  if (found == values_.end()) return std::nullopt;
  return found->second;
}

Registry::Place Registry::PlaceOf(RegistryRoot root, RegistryView view, const std::string& subkey,
                                  const std::string& name) {
  // The user's own part of the registry is one for programs of both kinds.
  if (root == RegistryRoot::CurrentUser) view = RegistryView::Of64Bit;
  return {root, view, FoldCase(subkey), FoldCase(name)};
}

}  // namespace Simulated

namespace Platform {

bool HasRegistryKey(RegistryRoot root, RegistryView view, const std::string& subkey) {
  Simulated::Machine& machine = Simulated::TheMachine();
  if (machine.faults.Strikes("HasRegistryKey " + subkey)) return false;
  return machine.registry.HasKey(root, view, subkey);
}

std::optional<RegistryValue> QueryRegistryValue(RegistryRoot root, RegistryView view,
                                                const std::string& subkey, const std::string& name,
                                                size_t capacity) {
  Simulated::Machine& machine = Simulated::TheMachine();
  if (machine.faults.Strikes("QueryRegistryValue " + name)) return std::nullopt;
  auto value = machine.registry.Find(root, view, subkey, name);
  if (value && value->bytes.size() > capacity) return std::nullopt;
  return value;
}

}  // namespace Platform
