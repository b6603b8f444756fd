#include "machine/simulated/Hearing.h"

#include <cctype>

namespace Simulated {

using Platform::Control;

namespace {

std::string HeardOfText(const NativeControl& box) {
  std::string heard = ", edit";
  if (box.textBox().IsReadOnly()) heard += ", read only";
  if (!box.text.empty()) heard += ", " + box.text;
  return heard;
}

std::string HeardOfList(const NativeControl& list) {
  if (list.rows.empty()) return ", list, empty";
  if (list.selected < 0) return ", list, not selected";
  return ", list, " + list.rows.at(static_cast<size_t>(list.selected)) + ", " +
         std::to_string(list.selected + 1) + " of " + std::to_string(list.rows.size());
}

std::string RoleAndState(const NativeControl& control) {
  switch (control.kind()) {
    case Control::Kind::Label: return "";
    case Control::Kind::TextBox: return HeardOfText(control);
    case Control::Kind::ListBox: return HeardOfList(control);
    case Control::Kind::Button: return ", button";
  }
  return "";
}

}  // namespace

std::string Heard(const Window& window) {
  // A window without a usable control has the focus itself.
  if (!window.focus) return window.title + ", window";
  const NativeControl& control = *window.focus;
  std::string heard = Platform::WithoutAccessKey(control.caption) + RoleAndState(control);
  if (const char key = Platform::AccessKey(control.caption)) {
    heard +=
        std::string(", Alt+") + static_cast<char>(std::toupper(static_cast<unsigned char>(key)));
  }
  return heard;
}

std::vector<std::string> HeardOnOpening(const Window& window) {
  std::vector<std::string> heard{window.title};
  for (const NativeControl& control : window.controls) {
    if (control.kind() == Control::Kind::Label && control.isVisible && control.isEnabled) {
      heard.push_back(Platform::WithoutAccessKey(control.caption));
    }
  }
  heard.push_back(Heard(window));
  return heard;
}

}  // namespace Simulated
