#include "platform/Web.h"

#include "machine/win32/System.h"

#include <objbase.h>
#include <urlmon.h>
#include <wininet.h>

#include "machine/win32/SystemLibrary.h"
#include "platform/LongStep.h"

namespace Platform {

namespace {

SystemFunction<decltype(::CoInitializeEx)> CoInitializeEx("ole32.dll", "CoInitializeEx");
SystemFunction<decltype(::CoUninitialize)> CoUninitialize("ole32.dll", "CoUninitialize");
SystemFunction<decltype(::URLDownloadToFileA)> URLDownloadToFileA("urlmon.dll",
                                                                  "URLDownloadToFileA");
SystemFunction<decltype(::DeleteUrlCacheEntryA)> DeleteUrlCacheEntryA("wininet.dll",
                                                                      "DeleteUrlCacheEntryA");

}  // namespace

int32_t DownloadToFile(const std::string& url, const std::string& path) {
  // The system fetches on threads of its own and talks to this one by messages: what the user has
  // pressed may be handled within the call.
  const LongStep step;
  const HRESULT com = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE);
  const HRESULT result = URLDownloadToFileA(nullptr, url.c_str(), path.c_str(), 0, nullptr);
  if (SUCCEEDED(com)) CoUninitialize();
  return result;
}

void DropFromWebCache(const std::string& url) {
  // That there is no copy is what is wanted. One that is in use goes later, by the system's word.
  DeleteUrlCacheEntryA(url.c_str());
}

}  // namespace Platform
