// Every window of the pack is worked with the keyboard alone: Tab goes all the way round, and
// Escape leaves from everywhere.
#include <algorithm>

#include "e2e/Openings.h"
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

TEST_P(Keys, TheAccessKeyOfALabelMovesTheFocusToItsControl) {
  // The English labels have none, those of a translation may.
  WriteFile(
      PutProgramFolder() + "\\sk2pack.lng",
      "NewWhatPrompt=&New:\r\nPackageWhatPrompt=&Package:\r\nCheckWhatText=&Check:\r\n"
      "TracksPrompt=Select a &track:\r\nTimePrompt=T&ime:\r\nTrackViewer=Track &Viewer\r\n"
      "LengthPrompt=&Length:\r\nSurfacePrompt=&Surface:\r\nCurvePrompt=&Curve:\r\n"
      "TrackPartsQuestionText=&How many?\r\nSelectItem=Select an &item:\r\n"
      "InternalSoundsText=So&unds:\r\nLanguageChangerText=Select &Language:\r\n"
      "SelectIPPrompt=IP &List:\r\nIPTextPrompt=&IP:\r\nPackageDownloaderText=SK2 c&omponent:\r\n"
      "FileListText=&File:\r\nPIPVPrompt=&IP:\r\nSelectOption=Select an &option:\r\n"
      "AudioDevicesText=Input &Devices:\r\n");
  const Window window = Open();
  int keys = 0;
  for (const Window& control : TabStops(window)) {
    if (control.IsClass("Button")) continue;
    if (window.focus() == control) {
      Keyboard::Press("Tab");
      WaitUntil("the focus moved by Tab", [&] { return !(window.focus() == control); });
    }
    const auto label = control.previousSibling();
    ASSERT_TRUE(label && AccessKey(label->text())) << control.name();
    Keyboard::Press(std::string("Alt+") + AccessKey(label->text()));
    WaitForFocus(window, control);
    ++keys;
  }
  EXPECT_GT(keys, 0);
}

INSTANTIATE_TEST_SUITE_P(Windows, Keys, testing::ValuesIn(Openings()),
                         testing::PrintToStringParamName());

}  // namespace
}  // namespace E2e
