// Stands in for the help viewer and the web browser, and tells what the system gave them to open.
#pragma once

#include <string>

#include "e2e/driver/RegistryKey.h"

namespace E2e {

class Opener {
 public:
  // Until the end of this object, help files and web pages are opened by this very program, which
  // then only writes down what it was given into a file in the folder.
  explicit Opener(const std::string& folder);

  // Waits until something is opened, and returns it.
  std::string WaitForOpened() const;

  // For main: if this program was started as such a viewer, writes down what it was given, and
  // returns true.
  static bool WasStartedToOpen(int count, char** arguments);

 private:
  std::string recordPath_;
  RegistryKey extension_;
  RegistryKey helpCommand_;
  RegistryKey webCommand_;
};

}  // namespace E2e
