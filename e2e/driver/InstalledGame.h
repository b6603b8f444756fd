// The game as its own installer leaves it: a folder, and an entry in the 32-bit registry view.
#pragma once

#include <string>

#include "e2e/driver/RegistryKey.h"

namespace E2e {

// Nothing of a game is registered while this lives.
class NoGame {
 public:
  NoGame();

 protected:
  RegistryKey entry32_;
  RegistryKey entry64_;
};

// A copy of the demo game in the given folder, registered while this lives.
class InstalledGame : private NoGame {
 public:
  explicit InstalledGame(const std::string& folder);

  // Without a backslash at its end.
  const std::string& folder() const { return folder_; }

 private:
  std::string folder_;
};

}  // namespace E2e
