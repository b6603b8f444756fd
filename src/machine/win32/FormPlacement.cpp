// Where a form's window and its controls stand.
#include <algorithm>

#include "machine/win32/FormWindow.h"
#include "ui/Forms.h"

namespace Platform {

namespace {

// The size of a window without controls, in dialog units.
constexpr int BareWidth = 320;
constexpr int BareHeight = 120;

// Icon, buttons and air beside the title, in dialog units.
constexpr int TitleBarRest = 90;

Layout::Size SizeOf(const RECT& rect) {
  return {static_cast<int>(rect.right - rect.left), static_cast<int>(rect.bottom - rect.top)};
}

Layout::Size ClientSizeOf(HWND window) {
  RECT client{};
  GetClientRect(window, &client);
  return SizeOf(client);
}

// What a window can show at most on its screen, within its frame.
Layout::Size RoomFor(HWND window, const RECT& area) {
  const SIZE frame = Display::WithFrame(window, {0, 0});
  const Layout::Size size = SizeOf(area);
  return {size.width - static_cast<int>(frame.cx), size.height - static_cast<int>(frame.cy)};
}

// A window of that size in the middle of another rectangle, but wholly within the area.
POINT Centred(SIZE size, const RECT& over, const RECT& area) {
  const LONG x = over.left + (over.right - over.left - size.cx) / 2;
  const LONG y = over.top + (over.bottom - over.top - size.cy) / 2;
  // If it is larger than the area, its title bar is what must be seen.
  return {std::max(area.left, std::min(x, area.right - size.cx)),
          std::max(area.top, std::min(y, area.bottom - size.cy))};
}

}  // namespace

std::vector<Layout::Item> FormView::Native::LayoutItems() const {
  std::vector<Layout::Item> items;
  for (const ControlWindow& child : controls_) {
    if (child.control().IsVisible()) items.push_back(child.LayoutItem());
  }
  return items;
}

Layout::Font FormView::Native::LayoutFont() const {
  return {font_->units(),
          [this](const std::string& text, int width) { return font_->Measure(text, width); }};
}

Layout::Size FormView::Native::Measure(const RECT& area) {
  const Layout::Font font = LayoutFont();
  if (controls_.empty()) return {font.units.Across(BareWidth), font.units.Down(BareHeight)};
  const std::vector<Layout::Item> items = LayoutItems();
  const int titleWidth = font_->Width(form_.title()) + font.units.Across(TitleBarRest);
  const Layout::Size room = RoomFor(window_, area);
  const Layout::Size preferred = Layout::PreferredSize(items, font, titleWidth, room);
  leastSize_ = Layout::LeastSize(items, font, preferred.width);
  return preferred;
}

void FormView::Native::OpenAtItsPlace(HWND over) {
  const RECT area = Display::WorkArea(over ? over : window_);
  RECT middle = area;
  if (over && !IsIconic(over)) GetWindowRect(over, &middle);
  const SIZE size = Display::WithFrame(window_, Measure(area));
  const POINT place = Centred(size, middle, area);
  isLaidOut_ = true;
  SetWindowPos(window_, nullptr, place.x, place.y, size.cx, size.cy, SWP_NOZORDER | SWP_NOACTIVATE);
  PlaceControls();
}

void FormView::Native::PlaceControls() {
  if (controls_.empty()) return;
  const Layout::Font font = LayoutFont();
  const std::vector<Layout::Item> items = LayoutItems();
  const Layout::Size client = ClientSizeOf(window_);
  const std::vector<Layout::Place> places = Layout::Arrange(items, font, client);
  size_t next = 0;
  for (const ControlWindow& child : controls_) {
    if (child.control().IsVisible()) child.Place(places[next++]);
  }
}

void FormView::Native::LayOutAgain() {
  if (!isLaidOut_ || controls_.empty()) return;
  Measure(Display::WorkArea(window_));
  // It has a size of its own to grow from only when it is neither an icon nor fills the screen.
  isGrowthPutOff_ = IsIconic(window_) || IsZoomed(window_);
  if (!isGrowthPutOff_) Grow();
  if (!IsIconic(window_)) PlaceControls();
}

void FormView::Native::Grow() {
  const Layout::Size client = ClientSizeOf(window_);
  if (client.width >= leastSize_.width && client.height >= leastSize_.height) return;
  RECT now{};
  GetWindowRect(window_, &now);
  const SIZE size = Display::WithFrame(window_, {std::max(client.width, leastSize_.width),
                                                 std::max(client.height, leastSize_.height)});
  // It stays where it is, unless it would leave the screen.
  const RECT grown{now.left, now.top, now.left + size.cx, now.top + size.cy};
  const POINT place = Centred(size, grown, Display::WorkArea(window_));
  SetWindowPos(window_, nullptr, place.x, place.y, size.cx, size.cy, SWP_NOZORDER | SWP_NOACTIVATE);
}

void FormView::Native::MoveToScreen(UINT dpi, const RECT& suggested) {
  ChangeFont(dpi);
  // What the old font needed must not keep the window from the size that is suggested.
  if (isLaidOut_) Measure(Display::WorkArea(window_));
  if (!IsIconic(window_)) {
    SetWindowPos(window_, nullptr, suggested.left, suggested.top, suggested.right - suggested.left,
                 suggested.bottom - suggested.top, SWP_NOZORDER | SWP_NOACTIVATE);
  }
  LayOutAgain();
}

void FormView::Native::ChangeFont(UINT dpi) {
  auto font = std::make_unique<Display::Font>(dpi);
  for (ControlWindow& child : controls_) child.SetFont(*font);
  // The old one goes only when no control draws with it any more.
  font_ = std::move(font);
}

}  // namespace Platform
