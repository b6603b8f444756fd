// The web of the contract tests, and the programs that they let be started.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <optional>

#include "e2e/driver/StartedProgram.h"
#include "e2e/driver/WebServer.h"
#include "tests/machine/RealMachine.h"
#include "tests/machine/RealMachineKeys.h"
#include "tests/machine/TestMachine.h"

namespace {

// The system reads once in a process whom it asks for addresses: all tests have the same server. It
// must be there before the first download.
std::optional<E2e::WebServer>& StartedServer() {
  static std::optional<E2e::WebServer> server;
  return server;
}

E2e::WebServer& Server() {
  auto& server = StartedServer();
  if (!server) server.emplace();
  return *server;
}

std::vector<std::function<void()>>& DuringDownload() {
  static std::vector<std::function<void()>> actions;
  return actions;
}

void AddDuringDownload(std::function<void()> action) {
  if (DuringDownload().empty()) {
    Server().BeforeNextAnswer([] {
      for (const auto& each : DuringDownload()) each();
    });
  }
  DuringDownload().push_back(std::move(action));
}

}  // namespace

namespace TestMachine {

void Serve(const std::string& url, const std::string& page) {
  Server().Serve(url, page);
}

void GoOffline() {
  Server().GoOffline();
}

int RequestsFor(const std::string& url) {
  const std::vector<std::string> requests = Server().Requests();
  return static_cast<int>(std::count(requests.begin(), requests.end(), url));
}

// Into the program's queue, from another thread, as from the keyboard.
void PressDuringDownload(const std::string& key) {
  const auto stroke = KeyNames::StrokeNamed(key);
  ASSERT_TRUE(stroke) << key;
  AddDuringDownload([window = GetFocus(), stroke = *stroke] {
    const LPARAM down = stroke.isAlt ? 1 | (1 << 29) : 1;
    const LPARAM up = down | static_cast<LPARAM>(3) << 30;
    PostMessageA(window, stroke.isAlt ? WM_SYSKEYDOWN : WM_KEYDOWN, stroke.key, down);
    PostMessageA(window, stroke.isAlt ? WM_SYSKEYUP : WM_KEYUP, stroke.key, up);
  });
}

void CloseDuringDownload() {
  AddDuringDownload([window = GetActiveWindow()] {
    PostMessageA(window, WM_SYSCOMMAND, SC_CLOSE, 0);
    PostMessageA(window, WM_CLOSE, 0, 0);
  });
}

void PutProgram(const std::string& path) {
  PutFile(path, E2e::ProgramToStart());
}

ProgramStart StartOf(const std::string& path) {
  const E2e::Start start = E2e::StartOf(path);
  return {start.arguments, start.isMinimised};
}

}  // namespace TestMachine

void RealMachine::PutBackWeb() {
  DuringDownload().clear();
  if (!StartedServer()) return;
  Server().TakeAwayAll();
  Server().GoOnline();
}
