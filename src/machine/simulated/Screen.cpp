#include "machine/simulated/Screen.h"

#include <algorithm>

#include "machine/simulated/OpenBox.h"
#include "machine/simulated/Window.h"

namespace Simulated {

std::vector<std::string> Screen::Titles() const {
  std::vector<std::string> titles = dialogs;
  for (const OpenBox* box : boxes) titles.push_back(box->box().title);
  for (const Window* window : windows) {
    if (window->isShown) titles.push_back(window->title);
  }
  std::sort(titles.begin(), titles.end());
  return titles;
}

}  // namespace Simulated
