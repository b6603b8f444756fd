// Reads the menu bar of a window from inside its own program, for not every system lets one program
// read another's menus. The tests put this hook into the thread of the window.
#include <windows.h>

#include <string>

#include "e2e/menureader/Protocol.h"

namespace {

void Write(HMENU menu, int depth, std::string& lines) {
  for (int i = 0; i < GetMenuItemCount(menu); i++) {
    char caption[512] = "";
    GetMenuStringA(menu, static_cast<UINT>(i), caption, sizeof caption, MF_BYPOSITION);
    MENUITEMINFOA info{};
    info.cbSize = sizeof info;
    info.fMask = MIIM_STATE | MIIM_FTYPE;
    GetMenuItemInfoA(menu, static_cast<UINT>(i), TRUE, &info);
    lines += std::to_string(depth) + MenuReader::Separator + std::to_string(info.fState) +
             MenuReader::Separator + caption + "\n";
    if (const HMENU sub = GetSubMenu(menu, i)) Write(sub, depth + 1, lines);
  }
}

void WriteMenuOf(HWND window) {
  const HANDLE memory = OpenFileMappingA(FILE_MAP_WRITE, FALSE, MenuReader::Memory);
  if (!memory) return;
  if (void* view = MapViewOfFile(memory, FILE_MAP_WRITE, 0, 0, MenuReader::MemorySize)) {
    std::string lines;
    Write(GetMenu(window), 0, lines);
    if (lines.size() < MenuReader::MemorySize) lines.copy(static_cast<char*>(view), lines.size());
    UnmapViewOfFile(view);
  }
  CloseHandle(memory);
}

}  // namespace

extern "C" __declspec(dllexport) LRESULT CALLBACK
    ReadMenuHook(int code, WPARAM first, LPARAM second) {
  static const UINT message = RegisterWindowMessageA(MenuReader::Message);
  const auto* sent = reinterpret_cast<const CWPSTRUCT*>(second);
  if (code == HC_ACTION && sent->message == message) WriteMenuOf(sent->hwnd);
  return CallNextHookEx(nullptr, code, first, second);
}
