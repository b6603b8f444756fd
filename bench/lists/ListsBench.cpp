// A list of a window that is filled with many rows, beside a bare list box of the system that is
// filled with the same rows as fast as it goes. The window's list is meant to take at most twice as
// long.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

#include "machine/win32/System.h"
#include "ui/Forms.h"

namespace {

using Rows = std::vector<std::string>;

struct Tool final : Platform::Form {
  Tool() : Form(FixedText("Lists")) {}
  Platform::ListBox List{*this, {.label = FixedText("&Rows")}};
  Platform::Button Ccl{*this, {.text = FixedText("Cancel"), .isCancel = true}};
};

// Rows as long as those of the track editor, no two alike.
Rows MakeRows(int count) {
  Rows rows;
  for (int i = 0; i < count; ++i) {
    rows.push_back("Hairpin Right section on Gravel for " + std::to_string(1000 + i) + " units.");
  }
  return rows;
}

// Handles what the list has left to be done, drawing included.
void HandleWaitingMessages() {
  MSG message;
  while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageA(&message);
}

void FillBare(HWND list, const Rows& rows) {
  SendMessageA(list, WM_SETREDRAW, FALSE, 0);
  size_t bytes = 0;
  for (const std::string& row : rows) bytes += row.size() + 1;
  SendMessageA(list, LB_INITSTORAGE, static_cast<WPARAM>(rows.size()), static_cast<LPARAM>(bytes));
  for (const std::string& row : rows) {
    SendMessageA(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(row.c_str()));
  }
  SendMessageA(list, LB_SETCURSEL, 0, 0);
  SendMessageA(list, WM_SETREDRAW, TRUE, 0);
}

double SecondsOf(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

int NumberAfter(const std::string& name, int argc, char** argv, int otherwise) {
  for (int i = 1; i < argc; ++i) {
    const std::string argument = argv[i];
    if (argument.starts_with(name)) return std::max(1, std::atoi(argument.c_str() + name.size()));
  }
  return otherwise;
}

}  // namespace

// --rows=N and --rounds=N change what is measured, --brief only shows that the program runs.
int main(int argc, char** argv) {
  const bool isBrief = argc > 1 && std::string(argv[1]) == "--brief";
  const int count = NumberAfter("--rows=", argc, argv, isBrief ? 1000 : 100000);
  const int rounds = NumberAfter("--rounds=", argc, argv, isBrief ? 1 : 9);
  const Rows rows = MakeRows(count);

  Tool tool;
  Platform::StartProgram(tool);
  // Never shown, so that it draws nothing.
  const HWND parent = CreateWindowExA(0, "STATIC", "", WS_OVERLAPPEDWINDOW, 0, 0, 400, 400, nullptr,
                                      nullptr, nullptr, nullptr);
  const HWND bare = CreateWindowExA(0, "LISTBOX", "",
                                    WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_HSCROLL | LBS_NOTIFY, 0,
                                    0, 300, 300, parent, nullptr, nullptr, nullptr);

  // In turn, so that whatever else the machine does meanwhile hits both alike.
  std::vector<double> filled;
  std::vector<double> bareFilled;
  std::vector<double> ratios;
  for (int round = 0; round < rounds; ++round) {
    tool.List.Clear();
    HandleWaitingMessages();
    Rows given = rows;
    filled.push_back(SecondsOf([&] {
      tool.List.SetRows(std::move(given), 0);
      HandleWaitingMessages();
    }));
    SendMessageA(bare, LB_RESETCONTENT, 0, 0);
    bareFilled.push_back(SecondsOf([&] { FillBare(bare, rows); }));
    ratios.push_back(filled.back() / bareFilled.back());
  }
  std::printf("%d rows, median of %d\n  list of a window%12.3f s\n  bare list box%15.3f s\n", count,
              rounds, Median(filled), Median(bareFilled));
  std::printf("  ratio%23.2f\n", Median(ratios));
  if (SendMessageA(bare, LB_GETCOUNT, 0, 0) == count && tool.List.count() == count) return 0;
  std::fputs("rows are missing\n", stderr);
  return 1;
}
