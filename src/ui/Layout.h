// Where the controls of a window stand: one column in the order in which they were made, each label
// above its control, neighbouring buttons in rows at the right.
//
// Nothing here knows a pixel: distances are in dialog units, which grow with the font, and widths
// come from the texts as they are measured, so that no text is cut in any language.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace Platform::Layout {

struct Size {
  int width = 0;
  int height = 0;
  bool operator==(const Size&) const = default;
};

struct Rect {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
  int right() const { return x + width; }
  int bottom() const { return y + height; }
  bool operator==(const Rect&) const = default;
};

// Dialog units: a quarter of the font's mean width across, an eighth of its height down.
struct Units {
  int meanWidth;
  int height;
  int Across(int units) const { return (units * meanWidth + 2) / 4; }
  int Down(int units) const { return (units * height + 4) / 8; }
};

// The font of the window.
struct Font {
  Units units;
  // The size of a text whose lines are broken between words where they are wider than the given
  // width. A single word that is wider stands out.
  std::function<Size(const std::string& text, int width)> measure;
};

enum class Kind {
  Text,  // explains the window
  Line,  // a text box of one line
  Page,  // a text box of many lines
  List,  // a list box
  Button,
};

struct Item {
  Kind kind;
  std::string caption;  // as it is shown: the text, the label above, or the text on the button
};

struct Place {
  Rect label;  // empty where there is none: with texts and buttons
  Rect control;
};

// The size inside the frame that shows everything, with room for captions half as long again.
//   leastWidth  what the title in the frame needs.
//   most        the room on the screen: lists, pages and captions make do with it, but never become
//               so small that they cannot be used.
Size PreferredSize(const std::vector<Item>& items, const Font& font, int leastWidth, Size most);

// The smallest size at which nothing is cut, given a width inside the frame.
Size LeastSize(const std::vector<Item>& items, const Font& font, int width);

// One place for each item. Read in order they run from top to bottom and from left to right. Lists
// and pages share what height there is beyond the least size.
std::vector<Place> Arrange(const std::vector<Item>& items, const Font& font, Size client);

}  // namespace Platform::Layout
