// A small program that notes how it is started: it stands in for an installer.
#pragma once

#include <string>

namespace E2e {

// The bytes of the program, to be served or written to a file. Throws std::runtime_error if it was
// not built.
std::string ProgramToStart();

// The signature of those bytes by the tests' own key.
std::string SignatureOfProgramToStart();

struct Start {
  std::string arguments;  // what stands behind the program in its command line, byte for byte
  bool isMinimised;       // it is to show its first window so
};

// Waits until the program in that file has been started and has ended, and tells how. Its command
// line must begin with its own path, in quotes or not; throws std::runtime_error otherwise.
Start StartOf(const std::string& path);

// True if it has been started already.
bool WasStarted(const std::string& path);

}  // namespace E2e
