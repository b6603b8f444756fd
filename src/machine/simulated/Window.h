// A loaded window of the simulated machine: what its native twin would know beside the model.
#pragma once

#include <cstddef>
#include <map>

#include "ui/FormView.h"
#include "ui/Forms.h"

namespace Simulated {

// The selected part of a text box, from the anchor to the caret.
struct TextSelection {
  size_t anchor = 0;
  size_t caret = 0;

  size_t begin() const { return anchor < caret ? anchor : caret; }
  size_t end() const { return anchor < caret ? caret : anchor; }
};

struct Window {
  explicit Window(Platform::Form& shownForm) : form(shownForm) {}

  Platform::Form& form;
  bool isShown = false;
  bool isModalLoopRunning = false;
  std::map<const Platform::Control*, TextSelection> selections;

  // Complains about what keeps the user from hearing the window or working it by keyboard: texts
  // and lists without a name, access keys that two share, a missing title or focus.
  void Check() const;
  void CheckFocus() const;
};

}  // namespace Simulated

struct Platform::FormView::Native : Simulated::Window {
  using Window::Window;
};
