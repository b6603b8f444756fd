// Every window on screens that are denser than the one at hand, as high-resolution ones are.
#include "e2e/Openings.h"
#include "e2e/driver/Accessibility.h"
#include "e2e/driver/PackTest.h"

namespace E2e {
namespace {

// What programs that are started meanwhile take for the screen's density.
class DenseScreen {
 public:
  explicit DenseScreen(UINT dpi) : dpiBefore_(DrawnDpi()) {
    desktop_.Set("LogPixels", dpi);
    DrawnDpi() = dpi;
  }
  ~DenseScreen() { DrawnDpi() = dpiBefore_; }
  DenseScreen(const DenseScreen&) = delete;
  DenseScreen& operator=(const DenseScreen&) = delete;

 private:
  RegistryKey desktop_{HKEY_CURRENT_USER, "Control Panel\\Desktop", KEY_WOW64_64KEY};
  UINT dpiBefore_;
};

class DenseScreens : public PackTest, public testing::WithParamInterface<UINT> {
 protected:
  // Opens the first window of the pack, and returns the height of its button.
  LONG HeightOfAButton() {
    Pack& pack = StartPack();
    pack.Press("Ctrl+N");
    const RECT button = pack.WaitForWindow("New what?").control("OK").rectangle();
    return button.bottom - button.top;
  }
};

TEST_P(DenseScreens, DrawTheirTextsAsLarge) {
  const LONG before = HeightOfAButton();
  const DenseScreen screen(GetParam());
  const double expected = static_cast<double>(before) * GetParam() / GetDpiForSystem();
  EXPECT_NEAR(HeightOfAButton(), expected, expected / 10);  // fonts come in steps
}

// The rules themselves are checked wherever a window is waited for, and pictures taken.
TEST_P(DenseScreens, KeepEveryRuleInEachWindow) {
  const DenseScreen screen(GetParam());
  Pack& pack = StartPack();
  for (const Opening& opening : Openings()) {
    opening.open(pack);
    pack.WaitForWindow(opening.title);
    pack.Press("Escape");
    opening.leave(pack);
  }
}

INSTANTIATE_TEST_SUITE_P(Percent, DenseScreens, testing::Values(144U, 192U),
                         [](const auto& dpi) { return std::to_string(dpi.param * 100 / 96); });

}  // namespace
}  // namespace E2e
