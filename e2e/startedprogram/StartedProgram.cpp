// What the tests let be started in place of an installer: notes how that was done into a file
// beside itself, and ends. E2e::StartOf reads it.
#include <windows.h>

#include <fstream>
#include <string>

int main() {
  char path[MAX_PATH] = "";
  GetModuleFileNameA(nullptr, path, sizeof path);
  STARTUPINFOA how{};
  GetStartupInfoA(&how);
  const std::string note = std::string(path) + ".started";
  {
    std::ofstream file(note + ".new", std::ios::binary);
    file << ((how.dwFlags & STARTF_USESHOWWINDOW) ? how.wShowWindow : WORD{SW_SHOWDEFAULT}) << '\n'
         << path << '\n'
         << GetCommandLineA();
  }
  // Renamed when it is whole, for whoever waits for it.
  MoveFileA((note + ".new").c_str(), note.c_str());
}
