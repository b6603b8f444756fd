#include "e2e/driver/InstalledGame.h"

#include "e2e/driver/Places.h"

namespace E2e {
namespace {

constexpr const char* EntryPath =
    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\"
    "{7A3C51E2-94D0-4B6F-A1C8-2E5D90F4B317}_is1";

}  // namespace

NoGame::NoGame()
    : entry32_(HKEY_LOCAL_MACHINE, EntryPath, KEY_WOW64_32KEY),
      entry64_(HKEY_LOCAL_MACHINE, EntryPath, KEY_WOW64_64KEY) {
  for (const char* name : {"InstallLocation", "Publisher", "DisplayVersion", "Contact"}) {
    entry32_.Remove(name);
    entry64_.Remove(name);
  }
}

InstalledGame::InstalledGame(const std::string& folder) : folder_(folder) {
  CopyFolder(Given().demo, folder);
  entry32_.Set("InstallLocation", folder + "\\");
  entry32_.Set("Publisher", "Gloamworks");
  entry32_.Set("DisplayVersion", "2.1");
  entry32_.Set("Contact", "support@gloamworks.example");
}

}  // namespace E2e
