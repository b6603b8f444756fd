// From the start of the pack's process until its window is seen, beside a bare window that opens
// the sound device.
//   bench-start --pack=FOLDER --bare=PROGRAM [--rounds=N] [--brief]
#include <windows.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/Arguments.h"

namespace {

namespace fs = std::filesystem;

// Much longer than any start takes.
constexpr double Patience = 30;

double Seconds() {
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

// The visible window of a process; null if there is none yet.
HWND VisibleWindowOf(DWORD process) {
  struct Search {
    DWORD process;
    HWND found;
  } search{process, nullptr};
  EnumWindows(
      [](HWND window, LPARAM parameter) -> BOOL {
        auto& wanted = *reinterpret_cast<Search*>(parameter);
        DWORD owner = 0;
        GetWindowThreadProcessId(window, &owner);
        if (owner == wanted.process && IsWindowVisible(window)) wanted.found = window;
        return wanted.found == nullptr;
      },
      reinterpret_cast<LPARAM>(&search));
  return search.found;
}

// Starts a program and closes it again once its window is seen. Returns the seconds until then.
double SecondsToWindow(const std::string& program) {
  STARTUPINFOA start{};
  start.cb = sizeof start;
  PROCESS_INFORMATION process{};
  std::string command = "\"" + program + "\"";
  const double begin = Seconds();
  if (!CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                      &process)) {
    throw std::runtime_error("cannot start " + program);
  }
  HWND window = nullptr;
  while (!(window = VisibleWindowOf(process.dwProcessId))) {
    if (Seconds() - begin > Patience) throw std::runtime_error(program + " shows no window");
    Sleep(1);  // between two looks
  }
  const double seconds = Seconds() - begin;
  PostMessageA(window, WM_CLOSE, 0, 0);
  if (WaitForSingleObject(process.hProcess, static_cast<DWORD>(Patience * 1000)) != WAIT_OBJECT_0) {
    throw std::runtime_error(program + " does not end");
  }
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return seconds;
}

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  const size_t middle = values.size() / 2;
  return values.size() % 2 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

std::string Option(int argc, char** argv, const std::string& start) {
  for (int i = 1; i < argc; ++i) {
    if (std::string(argv[i]).starts_with(start)) return std::string(argv[i]).substr(start.size());
  }
  throw std::runtime_error("it takes " + start + "...");
}

// A copy of the program folder: the pack makes its language file there.
class InstalledPack {
 public:
  explicit InstalledPack(const std::string& from)
      : folder_(fs::temp_directory_path() /
                ("sk2pack-bench-" + std::to_string(GetCurrentProcessId()))) {
    fs::remove_all(folder_);
    fs::copy(from, folder_, fs::copy_options::recursive);
  }
  ~InstalledPack() {
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
  }
  InstalledPack(const InstalledPack&) = delete;
  InstalledPack& operator=(const InstalledPack&) = delete;

  std::string program() const { return (folder_ / "sk2pack.exe").string(); }

 private:
  fs::path folder_;
};

void Compare(const std::string& packFolder, const std::string& bare, int rounds) {
  const InstalledPack pack(packFolder);
  // The first start of each reads the disk, and the pack writes its language file.
  SecondsToWindow(pack.program());
  SecondsToWindow(bare);
  // In turn, so that whatever else the machine does meanwhile hits both alike.
  std::vector<double> packs;
  std::vector<double> bares;
  for (int round = 0; round < rounds; ++round) {
    packs.push_back(SecondsToWindow(pack.program()));
    bares.push_back(SecondsToWindow(bare));
  }
  std::printf("From the start of the process to the window, median of %d\n", rounds);
  std::printf("  pack        %6.1f ms\n", Median(packs) * 1000);
  std::printf("  bare window %6.1f ms\n", Median(bares) * 1000);
  std::printf("  pack / bare window %.2f\n", Median(packs) / Median(bares));
}

}  // namespace

int main(int argc, char** argv) {
  try {
    Compare(Option(argc, argv, "--pack="), Option(argc, argv, "--bare="),
            Arguments(argc, argv).rounds);
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "%s\n", failure.what());
    return 1;
  }
}
