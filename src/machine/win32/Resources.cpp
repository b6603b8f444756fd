#include "platform/Resources.h"

#include "machine/win32/System.h"

namespace Platform {

std::optional<std::string> ReadResource(int type, const std::string& name) {
  // The system would take what follows for a number.
  if (name.starts_with('#')) return std::nullopt;
  const HRSRC place = FindResourceA(nullptr, name.c_str(), MAKEINTRESOURCEA(type));
  const HGLOBAL loaded = place ? LoadResource(nullptr, place) : nullptr;
  const auto* bytes = loaded ? static_cast<const char*>(LockResource(loaded)) : nullptr;
  if (!bytes) return std::nullopt;
  return std::string(bytes, SizeofResource(nullptr, place));
}

}  // namespace Platform
