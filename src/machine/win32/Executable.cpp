#include "platform/Executable.h"

#include <vector>

#include "machine/win32/CodePage.h"
#include "machine/win32/System.h"
#include "machine/win32/SystemLibrary.h"
#include "platform/Paths.h"

namespace Platform {

namespace {

SystemFunction<decltype(::VerQueryValueW)> VerQueryValueW("version.dll", "VerQueryValueW");

constexpr WORD VersionType = 16;  // RT_VERSION

std::wstring WidePath() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    if (length < path.size()) {
      path.resize(length);
      return path;
    }
    path.resize(path.size() * 2);
  }
}

// The path in the code page. Folders whose names it cannot hold are given by their short names,
// where the disk keeps such.
std::string Path() {
  const std::wstring path = WidePath();
  std::string narrow = Narrow(path);
  if (Widen(narrow) == path) return narrow;
  std::wstring shortPath(path.size() + MAX_PATH, L'\0');
  const DWORD length =
      GetShortPathNameW(path.c_str(), shortPath.data(), static_cast<DWORD>(shortPath.size()));
  if (length == 0 || length >= shortPath.size()) return narrow;
  shortPath.resize(length);
  return Narrow(shortPath);
}

// Of the program in memory, so that it is there even when the file is out of reach, as on a stick
// that was pulled out. A copy: the queries may write into it. Empty if there is none.
std::vector<char> VersionResource() {
  const HRSRC place =
      FindResourceW(nullptr, MAKEINTRESOURCEW(VS_VERSION_INFO), MAKEINTRESOURCEW(VersionType));
  const HGLOBAL loaded = place ? LoadResource(nullptr, place) : nullptr;
  const auto* bytes = loaded ? static_cast<const char*>(LockResource(loaded)) : nullptr;
  if (!bytes) return {};
  return {bytes, bytes + SizeofResource(nullptr, place)};
}

// One text of a version resource, in the first language that the resource lists.
std::string VersionText(const std::vector<char>& resource, const wchar_t* name) {
  struct Language {
    WORD language;
    WORD codePage;
  };
  Language* language = nullptr;
  UINT size = 0;
  if (!VerQueryValueW(resource.data(), L"\\VarFileInfo\\Translation",
                      reinterpret_cast<void**>(&language), &size) ||
      size < sizeof(Language)) {
    return {};
  }
  wchar_t key[80];
  wsprintfW(key, L"\\StringFileInfo\\%04x%04x\\%s", language->language, language->codePage, name);
  wchar_t* text = nullptr;
  if (!VerQueryValueW(resource.data(), key, reinterpret_cast<void**>(&text), &size) || size == 0) {
    return {};
  }
  return Narrow(text);
}

}  // namespace

std::string ProgramFolder() {
  return FolderOf(Path());
}

std::string ExecutableName() {
  const std::string name = NameOf(Narrow(WidePath()));
  return name.substr(0, name.rfind('.'));
}

ProgramVersion ReadProgramVersion() {
  const std::vector<char> resource = VersionResource();
  if (resource.empty()) return {};
  ProgramVersion version;
  VS_FIXEDFILEINFO* numbers = nullptr;
  UINT length = 0;
  if (VerQueryValueW(resource.data(), L"\\", reinterpret_cast<void**>(&numbers), &length) &&
      length >= sizeof(*numbers)) {
    version.major = HIWORD(numbers->dwFileVersionMS);
    version.minor = LOWORD(numbers->dwFileVersionMS);
    version.revision = HIWORD(numbers->dwFileVersionLS);
  }
  version.productName = VersionText(resource, L"ProductName");
  version.fileDescription = VersionText(resource, L"FileDescription");
  return version;
}

}  // namespace Platform
