// Every window of the pack is worked with the keyboard alone: Tab goes all the way round, and
// Escape leaves from everywhere.
#include <algorithm>

#include "e2e/driver/Keyboard.h"
#include "e2e/driver/PackTest.h"

namespace E2e {
namespace {

// The controls on which Tab is to stop, in their order.
std::vector<Window> TabStops(const Window& window) {
  std::vector<Window> stops;
  for (const Window& child : window.children()) {
    if (child.IsVisible() && child.IsEnabled() && !child.IsClass("Static")) stops.push_back(child);
  }
  return stops;
}

void WaitForFocus(const Window& window, const Window& control) {
  WaitUntil("the focus on \"" + control.name() + "\"", [&] { return window.focus() == control; });
}

struct Opening {
  const char* title;
  std::function<void(Pack&)> open;   // from the main window
  std::function<void(Pack&)> leave;  // from where Escape leads, back to the main window
};

void PrintTo(const Opening& opening, std::ostream* out) {
  *out << opening.title;
}

void OpenTrackEditor(Pack& pack) {
  pack.ChooseMenu({"Track", "New"});
  pack.ChooseFile("keyboard");
  pack.WaitForWindow("SK2 Trackmaker by Orvane Interactive");
}

void WaitForMainWindow(Pack& pack) {
  pack.WaitForMain();
}

std::vector<Opening> Openings() {
  const auto press = [](const char* keys) { return [keys](Pack& pack) { pack.Press(keys); }; };
  return {
      {"New what?", press("Ctrl+N"), WaitForMainWindow},
      {"Package what?", press("Ctrl+P"), WaitForMainWindow},
      {"Check what?", press("Ctrl+C"), WaitForMainWindow},
      {"Record Viewer",
       [](Pack& pack) {
         pack.ChooseMenu({"Game", "Record Viewer"});
       },
       WaitForMainWindow},
      {"SK2 Trackmaker by Orvane Interactive", OpenTrackEditor, WaitForMainWindow},
      {"New track part",
       [](Pack& pack) {
         OpenTrackEditor(pack);
         pack.Press("Ctrl+Shift+N");
       },
       [](Pack& pack) {
         pack.WaitForWindow("SK2 Trackmaker by Orvane Interactive");
         pack.Press("Escape");
         pack.WaitForMain();
       }},
      {"Parts",
       [](Pack& pack) {
         pack.ChooseMenu({"Track", "Random Track"});
         pack.ChooseFile("keyboard");
         pack.AnswerBox("N");
       },
       [](Pack& pack) {
         pack.AnswerBox();
         pack.WaitForMain();
       }},
  };
}

class Keys : public PackTest, public testing::WithParamInterface<Opening> {
 protected:
  Window Open() {
    Pack& pack = StartPack();
    pack.WaitForMain();
    GetParam().open(pack);
    return pack.WaitForWindow(GetParam().title);
  }
};

TEST_P(Keys, TabAndShiftTabGoAllTheWayRound) {
  const Window window = Open();
  const std::vector<Window> stops = TabStops(window);
  ASSERT_FALSE(stops.empty());
  const auto first = std::find(stops.begin(), stops.end(), window.focus());
  ASSERT_NE(first, stops.end());
  const size_t start = static_cast<size_t>(first - stops.begin());
  for (size_t i = 1; i <= stops.size(); i++) {
    Keyboard::Press("Tab");
    WaitForFocus(window, stops[(start + i) % stops.size()]);
  }
  for (size_t i = stops.size(); i-- > 0;) {
    Keyboard::Press("Shift+Tab");
    WaitForFocus(window, stops[(start + i) % stops.size()]);
  }
}

TEST_P(Keys, EscapeLeavesFromEachControl) {
  Window window = Open();
  const size_t count = TabStops(window).size();
  Pack& pack = RunningPack();
  for (size_t i = 0; i < count; i++) {
    const Window control = TabStops(window).at(i);
    while (!(window.focus() == control)) {
      const auto before = window.focus();
      Keyboard::Press("Tab");
      WaitUntil("the focus moved by Tab", [&] { return window.focus() != before; });
    }
    pack.Press("Escape");
    GetParam().leave(pack);
    EXPECT_FALSE(window.Exists() && window.IsVisible()) << control.name();
    if (i + 1 == count) break;
    GetParam().open(pack);
    window = pack.WaitForWindow(GetParam().title);
  }
}

INSTANTIATE_TEST_SUITE_P(Windows, Keys, testing::ValuesIn(Openings()),
                         [](const testing::TestParamInfo<Opening>& opening) {
                           std::string name;
                           for (const char c : std::string(opening.param.title)) {
                             if (std::isalnum(static_cast<unsigned char>(c))) name += c;
                           }
                           return name;
                         });

}  // namespace
}  // namespace E2e
