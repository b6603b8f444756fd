#include "machine/win32/SystemLibrary.h"

#include "base/RuntimeError.h"

namespace Platform {

namespace {

// What the system's own parts and extensions load by a plain name comes from the system's folder
// too: neither from beside the program nor from the current folder. Before main, because the first
// window already loads some; it cannot be taken back.
[[maybe_unused]] const BOOL onlySystemFolder =
    SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32);

}  // namespace

void* FindSystemFunction(const char* library, const char* name) {
  // It stays loaded until the program ends: its functions may be called at any time.
  const HMODULE loaded = LoadLibraryExA(library, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
  void* const function = loaded ? reinterpret_cast<void*>(GetProcAddress(loaded, name)) : nullptr;
  if (!function) {
    throw RuntimeError(RuntimeError::DeviceError, RuntimeErrorTexts.SystemLibrary, library);
  }
  return function;
}

}  // namespace Platform
