// Where controls stand: in reading order, never cut, in any language, at any density.
#include "ui/Layout.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace {

using namespace Platform::Layout;

// A font in which every character is as wide as the next, and lines are broken at blanks.
Font FontOf(int meanWidth, int height) {
  return {{meanWidth, height}, [=](const std::string& text, int width) {
            int widest = 0;
            int line = 0;
            int lines = 1;
            size_t at = 0;
            while (at < text.size()) {
              const size_t end = std::min(text.find(' ', at), text.size());
              const int word = static_cast<int>(end - at) * meanWidth;
              if (line > 0 && line + meanWidth + word > width) {
                ++lines;
                line = word;
              } else {
                line += word + (line > 0 ? meanWidth : 0);
              }
              widest = std::max(widest, line);
              at = end + 1;
            }
            return Size{widest, lines * height};
          }};
}

const Font Usual = FontOf(6, 16);
constexpr Size Screen{1280, 1024};

// A window with everything in it. Its captions can be made longer, as in other languages.
std::vector<Item> Window(const std::string& more = "") {
  return {{Kind::Text, "Choose the server that the game is to use." + more},
          {Kind::List, "IP List:" + more},
          {Kind::Line, "IP:" + more},
          {Kind::Page, "Notes:" + more},
          {Kind::Button, "Add to IP List" + more},
          {Kind::Button, "Delete IP" + more},
          {Kind::Button, "OK" + more},
          {Kind::Button, "Cancel" + more}};
}

std::vector<Place> Preferred(const std::vector<Item>& items, const Font& font = Usual,
                             Size most = Screen) {
  return Arrange(items, font, PreferredSize(items, font, 0, most));
}

// All rectangles that are not empty, in the order of the native windows.
std::vector<Rect> InOrder(const std::vector<Place>& places) {
  std::vector<Rect> rects;
  for (const Place& place : places) {
    if (place.label.height > 0) rects.push_back(place.label);
    rects.push_back(place.control);
  }
  return rects;
}

void ExpectReadingOrder(const std::vector<Place>& places) {
  const std::vector<Rect> rects = InOrder(places);
  for (size_t i = 1; i < rects.size(); ++i) {
    const Rect& before = rects[i - 1];
    const Rect& here = rects[i];
    EXPECT_TRUE(here.y >= before.bottom() || (here.y == before.y && here.x >= before.right()))
        << "rectangle " << i;
  }
}

void ExpectWithin(const std::vector<Place>& places, Size client) {
  for (const Rect& rect : InOrder(places)) {
    EXPECT_GE(rect.x, 0);
    EXPECT_GE(rect.y, 0);
    EXPECT_LE(rect.right(), client.width);
    EXPECT_LE(rect.bottom(), client.height);
    EXPECT_GT(rect.width, 0);
    EXPECT_GT(rect.height, 0);
  }
}

void ExpectNothingCut(const std::vector<Item>& items, const std::vector<Place>& places,
                      const Font& font) {
  for (size_t i = 0; i < items.size(); ++i) {
    const bool hasLabel = items[i].kind != Kind::Text && items[i].kind != Kind::Button;
    const Rect& rect = hasLabel ? places[i].label : places[i].control;
    // A button shows its text in one line.
    const int width = items[i].kind == Kind::Button ? 1 << 20 : rect.width;
    const Size text = font.measure(items[i].caption, width);
    EXPECT_LE(text.width, rect.width) << items[i].caption;
    EXPECT_LE(text.height, rect.height) << items[i].caption;
  }
}

TEST(Layout, ReadsFromTopToBottomAndFromLeftToRight) {
  const auto places = Preferred(Window());
  ExpectReadingOrder(places);
  ExpectWithin(places, PreferredSize(Window(), Usual, 0, Screen));
}

TEST(Layout, NothingIsCutInAnyLanguageAtAnyDensity) {
  for (const std::string& more : {std::string(), std::string(" und noch etwas"),
                                  std::string(" Donaudampfschifffahrtsgesellschaft"),
                                  std::string(" so long that no window can have it in one line, "
                                              "and so it is broken")}) {
    for (const Font& font : {FontOf(6, 16), FontOf(9, 24), FontOf(12, 32), FontOf(7, 15)}) {
      const Size most{2560, 2048};
      const Size client = PreferredSize(Window(more), font, 0, most);
      const auto places = Arrange(Window(more), font, client);
      ExpectReadingOrder(places);
      ExpectNothingCut(Window(more), places, font);
      ExpectWithin(places, client);
    }
  }
}

TEST(Layout, ALabelStandsAboveItsControlAndIsAsWide) {
  const auto places = Preferred({{Kind::Line, "IP:"}});
  EXPECT_LT(places[0].label.bottom(), places[0].control.y);
  EXPECT_EQ(places[0].label.x, places[0].control.x);
  EXPECT_EQ(places[0].label.width, places[0].control.width);
}

TEST(Layout, TextsAndButtonsHaveNoLabel) {
  const auto places = Preferred({{Kind::Text, "Read this."}, {Kind::Button, "OK"}});
  EXPECT_EQ(places[0].label, Rect{});
  EXPECT_EQ(places[1].label, Rect{});
}

TEST(Layout, CaptionsMayGrowByHalf) {
  const std::string caption(50, 'x');
  const Size client = PreferredSize({{Kind::Line, caption}}, Usual, 0, Screen);
  const auto places = Arrange({{Kind::Line, caption}}, Usual, client);
  EXPECT_GE(places[0].label.width, 75 * 6);
}

TEST(Layout, NeighbouringButtonsStandInARowThatEndsAtTheMargin) {
  const std::vector<Item> items{
      {Kind::Line, "IP:"}, {Kind::Button, "OK"}, {Kind::Button, "Cancel"}};
  const auto places = Preferred(items);
  EXPECT_EQ(places[1].control.y, places[2].control.y);
  EXPECT_LT(places[1].control.right(), places[2].control.x);
  EXPECT_EQ(places[2].control.right(), places[0].control.right());
  EXPECT_EQ(places[1].control.width, places[2].control.width) << "short ones are equally wide";
}

TEST(Layout, ButtonsFlowIntoAsManyRowsAsTheyNeed) {
  std::vector<Item> items;
  for (int i = 0; i < 9; ++i) items.push_back({Kind::Button, "Button number " + std::to_string(i)});
  const Size client = PreferredSize(items, Usual, 0, Screen);
  const auto places = Arrange(items, Usual, client);
  ExpectReadingOrder(places);
  ExpectWithin(places, client);
  EXPECT_GT(places.back().control.y, places.front().control.bottom());
}

TEST(Layout, ButtonsKeepTheirPlaceBetweenOtherControls) {
  const auto places = Preferred(
      {{Kind::Line, "One:"}, {Kind::Button, "Play"}, {Kind::Line, "Two:"}, {Kind::Button, "OK"}});
  ExpectReadingOrder(places);
  EXPECT_LT(places[1].control.bottom(), places[2].label.y);
}

TEST(Layout, ListsShareTheHeightThatIsLeft) {
  const std::vector<Item> items{{Kind::List, "One:"}, {Kind::List, "Two:"}, {Kind::Button, "OK"}};
  const auto small = Arrange(items, Usual, {400, 400});
  const auto large = Arrange(items, Usual, {400, 601});
  EXPECT_EQ(large[0].control.height - small[0].control.height, 101);
  EXPECT_EQ(large[1].control.height - small[1].control.height, 100);
  ExpectWithin(large, {400, 601});
  EXPECT_EQ(large[2].control.height, small[2].control.height);
}

TEST(Layout, ListsMakeDoWithASmallScreen) {
  std::vector<Item> items;
  for (int i = 0; i < 4; ++i) items.push_back({Kind::List, "List:"});
  const Size roomy = PreferredSize(items, Usual, 0, Screen);
  const Size tight = PreferredSize(items, Usual, 0, {1280, roomy.height - 200});
  EXPECT_EQ(tight.height, roomy.height - 200);
  ExpectWithin(Arrange(items, Usual, tight), tight);
  // But never so small that they cannot be used.
  EXPECT_EQ(PreferredSize(items, Usual, 0, {1280, 10}), LeastSize(items, Usual, tight.width));
}

TEST(Layout, TheTitleIsNotCutEither) {
  EXPECT_EQ(PreferredSize({{Kind::Button, "OK"}}, Usual, 900, Screen).width, 900);
}

TEST(Layout, AllSizesGrowWithTheFont) {
  const Size usual = PreferredSize(Window(), FontOf(6, 16), 0, {9999, 9999});
  const Size twice = PreferredSize(Window(), FontOf(12, 32), 0, {9999, 9999});
  // But for what is lost in rounding to pixels.
  EXPECT_NEAR(twice.width, 2 * usual.width, 4);
  EXPECT_NEAR(twice.height, 2 * usual.height, 8);
}

TEST(Layout, DialogUnitsAreRoundedAsTheSystemRoundsThem) {
  const Units units{7, 15};
  EXPECT_EQ(units.Across(4), 7);
  EXPECT_EQ(units.Across(50), 88);  // 87.5
  EXPECT_EQ(units.Down(8), 15);
  EXPECT_EQ(units.Down(14), 26);  // 26.25
}

// --- Whole layouts, number by number in dialog units ---

// A font in which a dialog unit is a pixel, and every character is four units wide.
const Font InUnits = FontOf(4, 8);

using Lines = std::vector<std::string>;

std::string Described(const Rect& rect) {
  return std::to_string(rect.x) + "," + std::to_string(rect.y) + " " + std::to_string(rect.width) +
         "x" + std::to_string(rect.height);
}

// Each item in a line: where its control is, its label before it if it has one.
Lines Described(const std::vector<Place>& places) {
  Lines lines;
  for (const Place& place : places) {
    const std::string label = place.label == Rect{} ? "" : Described(place.label) + " / ";
    lines.push_back(label + Described(place.control));
  }
  return lines;
}

std::vector<Item> Buttons(const Lines& captions) {
  std::vector<Item> items;
  for (const std::string& caption : captions) items.push_back({Kind::Button, caption});
  return items;
}

TEST(LayoutInUnits, AWindowWithEverything) {
  std::vector<Item> items = Window();
  items.push_back({Kind::Line, ""});
  const Size client = PreferredSize(items, InUnits, 0, Screen);
  EXPECT_EQ(client, (Size{266, 304}));
  EXPECT_EQ(Described(Arrange(items, InUnits, client)),
            (Lines{"7,7 252x8", "7,22 252x8 / 7,33 252x86", "7,126 252x8 / 7,137 252x14",
                   "7,158 252x8 / 7,169 252x86", "23,262 72x14", "99,262 52x14", "155,262 50x14",
                   "209,262 50x14", "7,283 252x14"}));
}

TEST(LayoutInUnits, ItsLeastSize) {
  const std::vector<Item> items{{Kind::Text, "Choose a server."},
                                {Kind::List, "IP List:"},
                                {Kind::Page, "Notes:"},
                                {Kind::Button, "OK"}};
  const Size least = LeastSize(items, InUnits, 266);
  EXPECT_EQ(least, (Size{266, 139}));
  const Lines places{"7,7 252x8", "7,22 252x8 / 7,33 252x30", "7,70 252x8 / 7,81 252x30",
                     "209,118 50x14"};
  EXPECT_EQ(Described(Arrange(items, InUnits, least)), places);
  EXPECT_EQ(Described(Arrange(items, InUnits, {266, 50})), places) << "it does not become smaller";
}

TEST(LayoutInUnits, ASmallWindow) {
  const std::vector<Item> items{
      {Kind::Line, "IP:"}, {Kind::Button, "OK"}, {Kind::Button, "Cancel"}};
  EXPECT_EQ(PreferredSize(items, InUnits, 0, Screen), (Size{194, 60}));
  EXPECT_EQ(Described(Preferred(items, InUnits)),
            (Lines{"7,7 180x8 / 7,18 180x14", "83,39 50x14", "137,39 50x14"}));
  EXPECT_EQ(PreferredSize(items, InUnits, 400, Screen).width, 400) << "what the title needs";
  EXPECT_EQ(PreferredSize(items, InUnits, 400, {150, 1024}).width, 150) << "what the screen has";
}

TEST(LayoutInUnits, AListTakesTheHeightThatIsLeft) {
  const std::vector<Item> items{{Kind::List, "IP:"}, {Kind::Button, "OK"}};
  EXPECT_EQ(Described(Preferred(items, InUnits)),
            (Lines{"7,7 180x8 / 7,18 180x86", "137,111 50x14"}));
  EXPECT_EQ(Described(Arrange(items, InUnits, {194, 100})),
            (Lines{"7,7 180x8 / 7,18 180x54", "137,79 50x14"}));
}

TEST(LayoutInUnits, ALongTextIsBroken) {
  const std::string text = std::string(70, 'x') + " " + std::string(9, 'y');
  EXPECT_EQ(Described(Preferred({{Kind::Text, text}}, InUnits)), Lines{"7,7 300x16"});
  EXPECT_EQ(Described(Preferred({{Kind::Line, text}}, InUnits)), Lines{"7,7 300x16 / 7,26 300x14"});
}

TEST(LayoutInUnits, ALongWordIsNot) {
  const std::string word(80, 'x');
  EXPECT_EQ(Described(Preferred({{Kind::Text, word}}, InUnits)), Lines{"7,7 320x8"});
  EXPECT_EQ(Described(Preferred(Buttons({word, "OK"}), InUnits)),
            (Lines{"7,7 336x14", "293,25 50x14"}));
}

TEST(LayoutInUnits, ARowOfButtonsIsAtMostAsWideAsATextMayBe) {
  const std::string caption(14, 'x');  // 72 units with its padding
  EXPECT_EQ(Described(Preferred(Buttons({caption, caption, caption, caption}), InUnits)),
            (Lines{"7,7 72x14", "83,7 72x14", "159,7 72x14", "235,7 72x14"}));
  EXPECT_EQ(Described(Preferred(Buttons({caption, caption, caption, caption + "x"}), InUnits)),
            (Lines{"7,7 72x14", "83,7 72x14", "159,7 72x14", "155,25 76x14"}));
  EXPECT_EQ(
      Described(Arrange(Buttons({caption, caption, caption, caption + "x"}), InUnits, {314, 46})),
      (Lines{"83,7 72x14", "159,7 72x14", "235,7 72x14", "231,25 76x14"}))
      << "the last is too wide by its gap";
}

TEST(LayoutInUnits, EachRunOfButtonsHasItsOwnRows) {
  const std::string caption(10, 'x');  // 56 units with its padding
  std::vector<Item> items = Buttons({caption, caption, caption, caption, caption});
  items.insert(items.begin() + 1, {Kind::Line, "IP:"});
  EXPECT_EQ(Described(Preferred(items, InUnits)),
            (Lines{"187,7 56x14", "7,28 236x8 / 7,39 236x14", "7,60 56x14", "67,60 56x14",
                   "127,60 56x14", "187,60 56x14"}));
}

TEST(LayoutInUnits, AButtonWithoutRoomStillShowsItsText) {
  const std::vector<Item> items = Buttons({std::string(20, 'x'), "OK"});
  EXPECT_EQ(Described(Arrange(items, InUnits, {94, 60})), (Lines{"7,7 80x14", "37,25 50x14"}));
  EXPECT_EQ(Described(Arrange(items, InUnits, {0, 0})), (Lines{"7,7 80x14", "7,25 8x14"}));
}

TEST(LayoutInUnits, TallLettersMakeTallButtons) {
  const Font tall{InUnits.units, FontOf(4, 12).measure};
  EXPECT_EQ(Described(Preferred(Buttons({"OK"}), tall)), Lines{"137,7 50x18"});
  const Font low{InUnits.units, FontOf(4, 7).measure};
  EXPECT_EQ(Described(Preferred(Buttons({"OK"}), low)), Lines{"137,7 50x14"});
}

}  // namespace
