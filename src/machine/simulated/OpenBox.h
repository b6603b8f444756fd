// A message box of the simulated machine, while it is on the screen.
#pragma once

#include <optional>

#include "machine/simulated/Script.h"
#include "ui/Keys.h"

namespace Simulated {

class OpenBox {
 public:
  explicit OpenBox(const Box& box);

  const Box& box() const { return box_; }
  // What the user has answered; nothing while the box stays.
  const std::optional<Platform::Answer>& answer() const { return answer_; }

  // Enter, Escape, Space, Tab, arrows and the access keys of the buttons.
  void Press(const Platform::KeyEvent& key);

 private:
  Box box_;
  bool isOnSecondButton_;
  std::optional<Platform::Answer> answer_;
};

}  // namespace Simulated
