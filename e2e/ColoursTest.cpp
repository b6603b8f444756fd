// The user's own colours: every window takes them, as people need it who see little.
#include <algorithm>
#include <array>
#include <map>

#include "e2e/Openings.h"
#include "e2e/driver/PackTest.h"
#include "e2e/driver/Picture.h"

namespace E2e {
namespace {

constexpr uint32_t Black = 0x000000;
constexpr uint32_t White = 0xFFFFFF;

// White on black, while this lives.
class HighContrast {
 public:
  HighContrast() {
    std::array<COLORREF, Size> colours{};
    for (size_t i = 0; i < Size; i++) {
      before_[i] = GetSysColor(Elements[i]);
      colours[i] = i < Backgrounds ? Black : White;
    }
    SetSysColors(Size, Elements.data(), colours.data());
  }
  ~HighContrast() { SetSysColors(Size, Elements.data(), before_.data()); }
  HighContrast(const HighContrast&) = delete;
  HighContrast& operator=(const HighContrast&) = delete;

 private:
  static constexpr size_t Backgrounds = 4;
  static constexpr size_t Size = 8;
  static constexpr std::array<INT, Size> Elements{
      COLOR_BTNFACE, COLOR_WINDOW,     COLOR_MENU,     COLOR_APPWORKSPACE,
      COLOR_BTNTEXT, COLOR_WINDOWTEXT, COLOR_MENUTEXT, COLOR_CAPTIONTEXT};
  std::array<COLORREF, Size> before_{};
};

// The colour that most of a window has, without its frame.
uint32_t MainColourOf(const Window& window) {
  RECT inside = window.clientSize();
  MapWindowPoints(window.handle(), nullptr, reinterpret_cast<POINT*>(&inside), 2);
  std::map<uint32_t, int> counts;
  for (const uint32_t pixel : TakePicture(inside).pixels) ++counts[pixel];
  const auto most = std::max_element(counts.begin(), counts.end(), [](auto& one, auto& other) {
    return one.second < other.second;
  });
  return most == counts.end() ? 0x123456 : most->first;
}

// What is drawn comes to the screen a moment later.
void ExpectBlack(const Window& window, const std::string& what) {
  EXPECT_TRUE(ComesTrue([&] { return MainColourOf(window) == Black; })) << what;
}

using Colours = PackTest;

TEST_F(Colours, AreThoseOfTheUserInEveryWindow) {
  const HighContrast colours;
  Pack& pack = StartPack();
  ExpectBlack(pack.WaitForMain(), "the main window");
  for (const Opening& opening : Openings()) {
    opening.open(pack);
    const Window window = pack.WaitForWindow(opening.title);
    ExpectBlack(window, opening.form);
    for (const Window& child : window.children()) {
      if (child.IsClass("Button")) continue;  // drawn in the colours of the user's theme
      ExpectBlack(child, child.name() + " in " + opening.form);
    }
    pack.Press("Escape");
    opening.leave(pack);
  }
}

}  // namespace
}  // namespace E2e
