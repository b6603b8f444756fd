// Where a form's window and its controls stand.
#include <algorithm>

#include "platform/Forms.h"
#include "platform/win32/FormWindow.h"

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

// The window that was shown last: the next opens over it.
HWND& LastShown() {
  static HWND window = nullptr;
  return window;
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

void FormView::Native::OpenAtItsPlace() {
  const HWND neighbour = IsWindowVisible(LastShown()) ? LastShown() : nullptr;
  const RECT area = Display::WorkArea(neighbour ? neighbour : window_);
  RECT over = area;
  if (neighbour && !IsIconic(neighbour)) GetWindowRect(neighbour, &over);
  LastShown() = window_;

  const Layout::Font font = LayoutFont();
  Layout::Size client{font.units.Across(BareWidth), font.units.Down(BareHeight)};
  if (!controls_.empty()) {
    const int titleWidth = font_->Width(form_.title()) + font.units.Across(TitleBarRest);
    client = Layout::PreferredSize(LayoutItems(), font, titleWidth, RoomFor(window_, area));
    leastSize_ = Layout::LeastSize(LayoutItems(), font, client.width);
  }
  const SIZE size = Display::WithFrame(window_, client);
  const POINT place = Centred(size, over, area);
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
  const Layout::Size client = ClientSizeOf(window_);
  const RECT area = Display::WorkArea(window_);
  const Layout::Font font = LayoutFont();
  const Layout::Size wanted =
      Layout::PreferredSize(LayoutItems(), font, client.width, RoomFor(window_, area));
  leastSize_ = Layout::LeastSize(LayoutItems(), font, wanted.width);
  if (wanted.width > client.width || leastSize_.height > client.height) {
    RECT now{};
    GetWindowRect(window_, &now);
    const SIZE size =
        Display::WithFrame(window_, {wanted.width, std::max(client.height, leastSize_.height)});
    // It stays where it is, unless it would leave the screen.
    const RECT grown{now.left, now.top, now.left + size.cx, now.top + size.cy};
    const POINT place = Centred(size, grown, area);
    SetWindowPos(window_, nullptr, place.x, place.y, size.cx, size.cy,
                 SWP_NOZORDER | SWP_NOACTIVATE);
  }
  PlaceControls();
}

void FormView::Native::ChangeFont(UINT dpi) {
  auto font = std::make_unique<Display::Font>(dpi);
  for (ControlWindow& child : controls_) child.SetFont(*font);
  // The old one goes only when no control draws with it any more.
  font_ = std::move(font);
}

}  // namespace Platform
