// A library that has none of the functions which the pack could want, and that leaves a mark beside
// its own file when it is loaded: the tests put it beside the pack, under the names of Windows'
// own.
#include <windows.h>

#include <string>

BOOL WINAPI DllMain(HINSTANCE library, DWORD reason, LPVOID) {
  if (reason == DLL_PROCESS_ATTACH) {
    char path[MAX_PATH] = "";
    GetModuleFileNameA(library, path, sizeof path);
    const HANDLE mark = CreateFileA((std::string(path) + ".loaded").c_str(), GENERIC_WRITE, 0,
                                    nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (mark != INVALID_HANDLE_VALUE) CloseHandle(mark);
  }
  return TRUE;
}
