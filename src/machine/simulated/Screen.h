// What is on the screen of the simulated machine.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace Simulated {

class OpenBox;
struct Window;

struct Screen {
  std::vector<Window*> windows;           // loaded, on the screen or not
  std::vector<OpenBox*> boxes;            // the one in use last
  std::vector<std::string> dialogs;       // titles of open file dialogs, the one in use last
  int refusedBoxes = 0;                   // so many of the next boxes cannot be shown
  int boxesWithoutMemory = 0;             // so many of the next boxes fail for want of memory
  bool refusesWindows = false;            // showing one fails, as when memory has run out
  std::optional<std::string> refusedRow;  // no list takes such a row, as when memory has run out

  int answers = 0;  // how often a long step has answered other programs

  // The box that has the keyboard, if one has it.
  OpenBox* BoxInUse() const { return boxes.empty() ? nullptr : boxes.back(); }
  // The titles of all that is shown, boxes and dialogs included, sorted.
  std::vector<std::string> Titles() const;
};

}  // namespace Simulated
