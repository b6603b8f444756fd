#include "machine/win32/RecordingLibrary.h"

#include <string>

#include "machine/win32/CodePage.h"
#include "machine/win32/System.h"
#include "platform/Executable.h"

namespace Platform {

namespace {

template <class Function>
bool Find(HMODULE library, const char* name, Function& function) {
  function = reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name)));
  return function != nullptr;
}

HMODULE Load() {
  const std::wstring path = Widen(ProgramFolder()) + L"\\orec.dll";
  // A damaged file is as good as none; the system would show a box of its own.
  DWORD before = 0;
  const bool isSet = SetThreadErrorMode(SEM_FAILCRITICALERRORS, &before) != 0;
  // What it needs is the system's, whatever lies beside it.
  const HMODULE library = LoadLibraryExW(path.c_str(), nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
  if (isSet) SetThreadErrorMode(before, nullptr);
  return library;
}

}  // namespace

const RecordingLibrary* FindRecordingLibrary() {
  static RecordingLibrary library{};
  static bool isFound = false;
  if (isFound) return &library;
  const HMODULE loaded = Load();
  if (!loaded) return nullptr;
  isFound = Find(loaded, "ORec_Init", library.init) &&
            Find(loaded, "ORec_GetInputDeviceCount", library.count) &&
            Find(loaded, "ORec_GetInputDeviceName", library.name) &&
            Find(loaded, "ORec_OpenFile", library.open) &&
            Find(loaded, "ORec_StartRecording", library.start) &&
            Find(loaded, "ORec_StopRecording", library.stop) &&
            Find(loaded, "ORec_IsRecording", library.isRecording) &&
            Find(loaded, "ORec_CloseFile", library.close) &&
            Find(loaded, "ORec_Free", library.free);
  if (!isFound) FreeLibrary(loaded);
  return isFound ? &library : nullptr;
}

}  // namespace Platform
