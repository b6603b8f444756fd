#include "internet/Internet.h"

#include <exception>

#include "base/Text.h"
#include "game/Addresses.h"
#include "internet/AddressPage.h"
#include "internet/TemporaryFile.h"
#include "platform/Executable.h"
#include "platform/Files.h"
#include "platform/LetterCase.h"
#include "platform/Web.h"

namespace Internet {

namespace {

constexpr const char* Scheme = "http://";

// A file that an earlier run has left would pass for what has come: the system may call a download
// a success that has brought nothing.
bool HasMadeRoom(const std::string& path) {
  try {
    Platform::RemoveFile(path);
    return true;
  } catch (const std::exception&) {
    return false;
  }
}

std::string WithScheme(std::string url) {
  if (url.find_first_of("@:") == std::string::npos) {
    url = Text::Replace(Platform::LowerCase(url), "\\", "/");
  }
  return url.starts_with(Scheme) ? url : Scheme + url;
}

}  // namespace

bool DownloadURLToFile(const std::string& url, const std::string& path, bool keepCache) {
  if (!keepCache) Platform::DropFromWebCache(url);
  return HasMadeRoom(path) && Platform::DownloadToFile(url, path) == 0;
}

bool URLExists(const std::string& url) {
  const std::string path = Platform::ProgramFolder() + "\\ueft.tmp";
  // What a failed download has left stays, as it always has; the next one makes room for itself.
  if (!DownloadURLToFile(WithScheme(url), path, true) || !Platform::FileExists(path)) return false;
  HasMadeRoom(path);
  return true;
}

std::string GetPublicIP() {
  const TemporaryFile page("read.tmp");
  // The address may have changed since the page was last asked.
  Platform::DropFromWebCache(Addresses::AddressPage);
  if (!DownloadURLToFile(Addresses::AddressPage, page.path(), true)) return "";
  return AddressPage::AddressIn(page.Read());
}

bool IsInternetConnected() {
  return !GetPublicIP().empty();
}

}  // namespace Internet
