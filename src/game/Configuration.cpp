#include "game/Configuration.h"

#include <exception>

#include "base/RuntimeError.h"
#include "game/Application.h"
#include "game/ConfigurationText.h"
#include "platform/Files.h"

namespace Configuration {

namespace {

constexpr Platform::FileAttributes Hidden{.isHidden = true};

// Replaces a file whatever attributes it has, which are put back if that fails.
void Rewrite(const std::string& path, const std::string& bytes) {
  const Platform::FileAttributes before = Platform::AttributesOf(path);
  // The game hides the file, and some users protect it; a protected one could not be replaced.
  Platform::SetAttributes(path, {});
  try {
    Platform::WriteWholeFile(path, bytes);
    Platform::SetAttributes(path, Hidden);
  } catch (const std::exception&) {
    try {
      Platform::SetAttributes(path, before);
    } catch (const std::exception&) {
      // What the user is told is the first failure.
    }
    throw;
  }
}

}  // namespace

std::string Path() {
  return Application::GameFolder() + "\\Skidrun.cfg";
}

void Save(const std::string& name, const std::string& value, IfMissing ifMissing) {
  const std::string path = Path();
  const std::string text = Platform::ReadWholeFile(path).value_or("");
  if (!text.empty()) return Rewrite(path, WithSetting(text, name, value));
  if (ifMissing == IfMissing::Fail) throw RuntimeError(RuntimeError::FileNotFound, path);
  // An empty file may be hidden or protected as well as a full one.
  if (Platform::FileExists(path)) return Rewrite(path, WithSetting("", name, value));
  Platform::WriteWholeFile(path, WithSetting("", name, value));
  Platform::SetAttributes(path, Hidden);
}

}  // namespace Configuration
