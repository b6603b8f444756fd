#include "e2e/driver/StartedProgram.h"

#include <windows.h>

#include <fstream>
#include <iterator>
#include <optional>
#include <sstream>
#include <stdexcept>

#include "e2e/driver/Wait.h"

namespace E2e {

namespace {

// Both programs that use it lie in folders beside each other.
std::string PathOfProgram() {
  char path[MAX_PATH] = "";
  GetModuleFileNameA(nullptr, path, sizeof path);
  const std::string own = path;
  return own.substr(0, own.rfind('\\')) + "\\..\\e2e\\startedprogram.exe";
}

std::optional<std::string> BytesOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) return std::nullopt;
  return std::string(std::istreambuf_iterator<char>(file), {});
}

std::string MustRead(const std::string& path) {
  const auto bytes = BytesOf(path);
  if (!bytes) throw std::runtime_error(path + " is not there");
  return *bytes;
}

// A program's file cannot be written while it runs.
bool HasEnded(const std::string& path) {
  const HANDLE file =
      CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) return false;
  CloseHandle(file);
  return true;
}

std::string NoteOf(const std::string& path) {
  return path + ".started";
}

}  // namespace

std::string ProgramToStart() {
  return MustRead(PathOfProgram());
}

std::string SignatureOfProgramToStart() {
  return MustRead(PathOfProgram() + ".sig");
}

Start StartOf(const std::string& path) {
  // Its name is there a moment before whoever renamed it lets go of it.
  std::istringstream note(
      WaitFor<std::string>("the start of " + path, [&] { return BytesOf(NoteOf(path)); }));
  WaitUntil(path + " ended", [&] { return HasEnded(path); });
  std::string show;
  std::string own;
  std::getline(note, show);
  std::getline(note, own);
  const std::string line(std::istreambuf_iterator<char>(note), {});
  for (const std::string& program : {"\"" + own + "\"", own}) {
    if (!line.starts_with(program)) continue;
    const std::string rest = line.substr(program.size());
    if (!rest.empty() && rest.front() != ' ') continue;
    return {rest.empty() ? "" : rest.substr(1), show == std::to_string(SW_SHOWMINIMIZED)};
  }
  throw std::runtime_error("a command line without its program: " + line);
}

bool WasStarted(const std::string& path) {
  return GetFileAttributesA(NoteOf(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}

}  // namespace E2e
