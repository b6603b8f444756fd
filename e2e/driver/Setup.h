// The installer and the uninstaller of the pack, as they are started and worked.
#pragma once

#include <windows.h>

#include <map>
#include <string>

#include "e2e/driver/Window.h"

namespace E2e {

// The installers that the build makes, besides the shipped one: of the next version, and of one
// that is not the version that it says it is.
std::string NextInstaller();
std::string FalseInstaller();

// What stands in the version resource of a program: as numbers, "1.0.0.0", and by its names. Throws
// std::runtime_error if it has none.
struct VersionResource {
  std::string numbers;
  std::map<std::string, std::string> texts;
};
VersionResource VersionOf(const std::string& path);
// The first three numbers, "1.0.0".
std::string ShortVersionOf(const std::string& path);

// Every file in a folder and below it, with what tells its bytes from others.
struct FileBytes {
  size_t size;
  size_t hash;
  bool operator==(const FileBytes&) const = default;
};
std::map<std::string, FileBytes> FilesIn(const std::string& folder);

// The entry of the installed pack in the system's list of programs.
namespace InstalledEntry {
bool Exists();
// Throws std::runtime_error if there is no such value, or another type.
std::string Text(const std::string& name);
DWORD Number(const std::string& name);
}  // namespace InstalledEntry

// The pack's entry in the Start menu.
std::string StartMenuEntry();

// Removes what is installed, if anything is, as the system would do without asking; waits until it
// is done. The user's files stay.
void UninstallQuietly();

// Waits until a window of that title is in front, of whatever program, and takes its picture.
Window WaitForTitle(const std::string& title);
// The control with the focus by its name, "" if there is none.
std::string FocusedName(const Window& window);

}  // namespace E2e
