// The system's message boxes, read as they stand on the screen.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "e2e/driver/Window.h"

namespace E2e {

enum class BoxIcon { None, Information, Critical, Question };

struct BoxText {
  std::string title;
  std::string text;
  BoxIcon icon;
  std::vector<std::string> buttons;  // captions, without "&"

  bool operator==(const BoxText&) const = default;
};

void PrintTo(const BoxText& box, std::ostream* out);

// True if the window is a message box: a dialog that holds a text, buttons and nothing else.
bool IsBox(const Window& window);

// What a message box shows. It must be in front, for its icon is told by its looks.
BoxText ReadBox(const Window& box);

}  // namespace E2e
