// The clipboard of the simulated machine.
#pragma once

#include <string>

namespace Simulated {

class Clipboard {
 public:
  const std::string& text() const { return text_; }
  void SetText(const std::string& text) { text_ = text; }

  // Another program has it open, until the program has waited that many times for it.
  void Hold(int waits) { waitsLeft_ = waits; }
  // The same for ever.
  void Hold() { waitsLeft_ = -1; }
  void LetGo() { waitsLeft_ = 0; }

  // For the service: true if it is free now. Each call counts as a wait.
  bool Open() {
    if (waitsLeft_ == 0) return true;
    if (waitsLeft_ > 0) --waitsLeft_;
    return false;
  }

 private:
  std::string text_;
  int waitsLeft_ = 0;
};

}  // namespace Simulated
