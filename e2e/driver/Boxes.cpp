#include "e2e/driver/Boxes.h"

#include <algorithm>

#include "e2e/driver/Picture.h"
#include "e2e/driver/Wait.h"

namespace E2e {
namespace {

bool IsIcon(const Window& control) {
  return control.IsClass("Static") && (control.style() & SS_TYPEMASK) == SS_ICON;
}

// What is drawn comes to the screen a moment later.
Picture WaitForPicture(const RECT& rectangle) {
  Picture seen;
  ComesTrue([&] {
    seen = TakePicture(rectangle);
    return std::any_of(seen.pixels.begin(), seen.pixels.end(),
                       [&](uint32_t pixel) { return pixel != seen.pixels.front(); });
  });
  return seen;
}

BoxIcon IconIn(const Window& control) {
  const Picture seen = WaitForPicture(control.rectangle());
  if (seen.pixels.empty()) return BoxIcon::None;
  const uint32_t background = seen.pixels.front();
  const std::pair<const char*, BoxIcon> icons[] = {{IDI_INFORMATION, BoxIcon::Information},
                                                   {IDI_ERROR, BoxIcon::Critical},
                                                   {IDI_QUESTION, BoxIcon::Question}};
  BoxIcon closest = BoxIcon::None;
  double least = 0.05;  // what is further off is none of them
  for (const auto& [name, icon] : icons) {
    const double difference =
        Difference(seen, PictureOfIcon(name, seen.width, seen.height, background));
    if (difference < least) {
      least = difference;
      closest = icon;
    }
  }
  return closest;
}

}  // namespace

void PrintTo(const BoxText& box, std::ostream* out) {
  const char* names[] = {"no icon", "information", "critical", "question"};
  *out << "[" << box.title << "] " << box.text << " (" << names[static_cast<int>(box.icon)];
  for (const std::string& button : box.buttons) *out << ", " << button;
  *out << ")";
}

bool IsBox(const Window& window) {
  if (!window.IsClass("#32770")) return false;
  bool hasText = false;
  bool hasButton = false;
  for (const Window& child : window.children()) {
    if (!child.IsVisible()) continue;
    if (child.IsClass("Button")) {
      hasButton = true;
    } else if (child.IsClass("Static")) {
      hasText = hasText || !IsIcon(child);
    } else {
      return false;
    }
  }
  return hasText && hasButton;
}

BoxText ReadBox(const Window& box) {
  BoxText seen{box.text(), "", BoxIcon::None, {}};
  for (const Window& child : box.children()) {
    if (!child.IsVisible()) continue;
    if (child.IsClass("Button")) {
      seen.buttons.push_back(WithoutAccessKey(child.text()));
    } else if (IsIcon(child)) {
      seen.icon = IconIn(child);
    } else {
      seen.text += child.text();
    }
  }
  return seen;
}

}  // namespace E2e
