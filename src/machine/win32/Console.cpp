#include "platform/Console.h"

#include <fcntl.h>
#include <io.h>

#include <cstdio>

#include "machine/win32/CodePage.h"
#include "machine/win32/System.h"

// The C library's own, which puts the names of files in place of "*" and "?".
struct WideStartInfo {
  int newMode;
};
// NOLINTNEXTLINE(bugprone-reserved-identifier): so it is called
extern "C" __declspec(dllimport) int __cdecl __wgetmainargs(int* count, wchar_t*** arguments,
                                                            wchar_t*** environment, int expands,
                                                            WideStartInfo* info);

namespace Platform {

std::vector<std::string> StartConsole(int, char**) {
  for (FILE* stream : {stdout, stderr}) _setmode(_fileno(stream), _O_BINARY);
  SetConsoleOutputCP(CP_UTF8);
  int count = 0;
  wchar_t** arguments = nullptr;
  wchar_t** environment = nullptr;
  WideStartInfo info{};
  std::vector<std::string> texts;
  if (__wgetmainargs(&count, &arguments, &environment, 1, &info) < 0) return texts;
  for (int i = 1; i < count; ++i) texts.push_back(Narrow(arguments[i]));
  return texts;
}

}  // namespace Platform
