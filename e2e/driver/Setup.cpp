#include "e2e/driver/Setup.h"

#include <gtest/gtest.h>
#include <shlobj.h>

#include <filesystem>
#include <functional>
#include <optional>
#include <stdexcept>

#include "e2e/driver/Pack.h"
#include "e2e/driver/Places.h"
#include "e2e/driver/RunningProgram.h"
#include "e2e/driver/Wait.h"

namespace E2e {
namespace {

constexpr const char* EntryKey = R"(Software\Microsoft\Windows\CurrentVersion\Uninstall\SK2Pack)";

std::string ValueOf(const std::string& name, DWORD type) {
  char bytes[2048] = "";
  DWORD size = sizeof bytes;
  if (RegGetValueA(HKEY_CURRENT_USER, EntryKey, name.c_str(), type, nullptr, bytes, &size) !=
      ERROR_SUCCESS) {
    throw std::runtime_error("no " + name + " in the entry of the installed pack");
  }
  return {bytes, size};
}

// True if nothing in a window, or in the page in it, is left to be drawn.
bool IsDrawn(const Window& window) {
  for (const Window& child : window.children()) {
    if (child.IsVisible() && !IsDrawn(child)) return false;
  }
  return GetUpdateRect(window.handle(), nullptr, FALSE) == FALSE;
}

}  // namespace

std::string NextInstaller() {
  return Given().versions + "\\sk2up-next.exe";
}

std::string FalseInstaller() {
  return Given().versions + "\\sk2up-false.exe";
}

VersionResource VersionOf(const std::string& path) {
  DWORD unused = 0;
  std::string resource(GetFileVersionInfoSizeA(path.c_str(), &unused), '\0');
  VS_FIXEDFILEINFO* numbers = nullptr;
  UINT size = 0;
  if (resource.empty() ||
      !GetFileVersionInfoA(path.c_str(), 0, static_cast<DWORD>(resource.size()), resource.data()) ||
      !VerQueryValueA(resource.data(), "\\", reinterpret_cast<void**>(&numbers), &size)) {
    throw std::runtime_error(path + " has no version");
  }
  VersionResource version;
  for (const DWORD part : {numbers->dwFileVersionMS, numbers->dwFileVersionLS}) {
    version.numbers += (version.numbers.empty() ? "" : ".") + std::to_string(HIWORD(part)) + "." +
                       std::to_string(LOWORD(part));
  }
  WORD* language = nullptr;
  if (!VerQueryValueA(resource.data(), "\\VarFileInfo\\Translation",
                      reinterpret_cast<void**>(&language), &size)) {
    return version;
  }
  for (const char* name : {"CompanyName", "FileDescription", "FileVersion", "OriginalFilename",
                           "ProductName", "ProductVersion"}) {
    char key[100];
    wsprintfA(key, "\\StringFileInfo\\%04x%04x\\%s", language[0], language[1], name);
    char* text = nullptr;
    if (VerQueryValueA(resource.data(), key, reinterpret_cast<void**>(&text), &size)) {
      version.texts[name] = text;
    }
  }
  return version;
}

std::string ShortVersionOf(const std::string& path) {
  const std::string numbers = VersionOf(path).numbers;
  return numbers.substr(0, numbers.rfind('.'));
}

std::map<std::string, FileBytes> FilesIn(const std::string& folder) {
  std::map<std::string, FileBytes> files;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
    if (!entry.is_regular_file()) continue;
    const std::string path = entry.path().string();
    const std::string bytes = ReadFile(path);
    files[path.substr(folder.size() + 1)] = {bytes.size(), std::hash<std::string>{}(bytes)};
  }
  return files;
}

namespace InstalledEntry {

bool Exists() {
  HKEY key = nullptr;
  if (RegOpenKeyExA(HKEY_CURRENT_USER, EntryKey, 0, KEY_READ, &key) != ERROR_SUCCESS) return false;
  RegCloseKey(key);
  return true;
}

std::string Text(const std::string& name) {
  return ValueOf(name, RRF_RT_REG_SZ).c_str();
}

DWORD Number(const std::string& name) {
  return *reinterpret_cast<const DWORD*>(ValueOf(name, RRF_RT_REG_DWORD).data());
}

}  // namespace InstalledEntry

std::string StartMenuEntry() {
  char folder[MAX_PATH] = "";
  SHGetFolderPathA(nullptr, CSIDL_PROGRAMS, nullptr, 0, folder);
  return std::string(folder) + "\\Skidrun2 Utility Pack.lnk";
}

void UninstallQuietly() {
  if (!InstalledEntry::Exists()) return;
  const std::string command = InstalledEntry::Text("QuietUninstallString");
  const size_t end = command.find('"', 1);
  const std::string uninstaller = command.substr(1, end - 1);
  const RunningProgram first(uninstaller, command.substr(end + 2));
  // The first one only starts a copy of itself, which removes it too.
  first.WaitForEnd();
  WaitUntil("the end of uninstalling",
            [&] { return !InstalledEntry::Exists() && !E2e::Exists(uninstaller); });
}

Window WaitForTitle(const std::string& title) {
  const Window found =
      WaitFor<Window>("\"" + title + "\" in front", [&]() -> std::optional<Window> {
        const Window front(GetForegroundWindow());
        if (!front.Exists() || !front.IsVisible() || front.text() != title || !front.focus()) {
          return std::nullopt;
        }
        front.WaitUntilDrawn();
        const bool isStill = front.IsForeground() && front.text() == title && IsDrawn(front);
        return isStill ? std::optional(front) : std::nullopt;
      });
  SavePictureOf(found.rectangle(), title);
  return found;
}

std::string FocusedName(const Window& window) {
  const auto focus = window.focus();
  return focus ? focus->name() : "";
}

}  // namespace E2e
