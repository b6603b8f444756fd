#include "ui/Layout.h"

#include <algorithm>
#include <utility>

namespace Platform::Layout {

namespace {

// The system's own distances, in dialog units.
constexpr int Margin = 7;
constexpr int LabelGap = 3;
constexpr int Gap = 7;
constexpr int ButtonGap = 4;
constexpr int LineHeight = 14;
constexpr int ButtonHeight = 14;
constexpr int ButtonWidth = 50;
constexpr int ButtonPadding = 8;  // on each side of the text
constexpr int BoxFrame = 6;       // above and below the rows of a list or page together
constexpr int RowHeight = 8;
constexpr int LeastRows = 3;
constexpr int UsualRows = 10;
constexpr int LeastWidth = 180;
constexpr int WidestText = 300;  // longer explanations are broken into lines

constexpr int AnyWidth = 1 << 20;

bool Grows(const Item& item) {
  return item.kind == Kind::List || item.kind == Kind::Page;
}

int RowsHeight(const Font& font, int rows) {
  return font.units.Down(rows * RowHeight + BoxFrame);
}

Size ButtonSize(const Item& item, const Font& font, int width) {
  const Size text = font.measure(item.caption, AnyWidth);
  const int wanted =
      std::max(font.units.Across(ButtonWidth), text.width + font.units.Across(2 * ButtonPadding));
  const int height =
      std::max(font.units.Down(ButtonHeight), text.height + font.units.Down(BoxFrame));
  // In a narrow window it is the air that goes, not a part of the caption.
  return {std::min(wanted, std::max(width, text.width)), height};
}

// Goes down the column, and puts each item where it belongs.
class Column {
 public:
  Column(const std::vector<Item>& items, const Font& font, int width, int growerHeight, int rest)
      : items_(items), font_(font), growerHeight_(growerHeight), rest_(rest) {
    margin_ = font.units.Across(Margin);
    width_ = std::max(1, width - 2 * margin_);
    y_ = font.units.Down(Margin);
    places_.resize(items.size());
    for (size_t i = 0; i < items.size();) {
      if (i > 0) y_ += font_.units.Down(Gap);
      i = items[i].kind == Kind::Button ? PutButtons(i) : PutBox(i);
    }
    y_ += font.units.Down(Margin);
  }

  int height() const { return y_; }
  const std::vector<Place>& places() const { return places_; }

 private:
  size_t PutBox(size_t i) {
    const Item& item = items_[i];
    if (item.kind == Kind::Text) {
      places_[i].control = Put(font_.measure(item.caption, width_).height);
      return i + 1;
    }
    if (!item.caption.empty()) {
      places_[i].label = Put(font_.measure(item.caption, width_).height);
      y_ += font_.units.Down(LabelGap);
    }
    int height = font_.units.Down(LineHeight);
    if (Grows(item)) {
      // What cannot be divided evenly goes to the first.
      height = growerHeight_ + std::exchange(rest_, 0);
    }
    places_[i].control = Put(height);
    return i + 1;
  }

  // A run of buttons, in rows that end at the right margin.
  size_t PutButtons(size_t i) {
    const int gap = font_.units.Across(ButtonGap);
    bool isFirstRow = true;
    while (i < items_.size() && items_[i].kind == Kind::Button) {
      if (!std::exchange(isFirstRow, false)) y_ += font_.units.Down(ButtonGap);
      const size_t first = i;
      int rowWidth = 0;
      int rowHeight = 0;
      std::vector<Size> sizes;
      for (; i < items_.size() && items_[i].kind == Kind::Button; ++i) {
        const Size size = ButtonSize(items_[i], font_, width_);
        // The first goes in even if it alone is too wide.
        if (i > first && rowWidth + gap + size.width > width_) break;
        rowWidth += size.width + (i > first ? gap : 0);
        rowHeight = std::max(rowHeight, size.height);
        sizes.push_back(size);
      }
      int x = margin_ + std::max(0, width_ - rowWidth);
      for (size_t k = 0; k < sizes.size(); ++k) {
        places_[first + k].control = {x, y_, sizes[k].width, rowHeight};
        x += sizes[k].width + gap;
      }
      y_ += rowHeight;
    }
    return i;
  }

  Rect Put(int height) {
    const Rect rect{margin_, y_, width_, height};
    y_ += height;
    return rect;
  }

  const std::vector<Item>& items_;
  const Font& font_;
  int growerHeight_;
  int rest_;
  int margin_ = 0;
  int width_ = 0;
  int y_ = 0;
  std::vector<Place> places_;
};

// The width inside the margins that the items would like.
int ContentWidth(const std::vector<Item>& items, const Font& font) {
  const int widest = font.units.Across(WidestText);
  int width = font.units.Across(LeastWidth);
  int run = 0;
  for (const Item& item : items) {
    const int text = font.measure(item.caption, AnyWidth).width;
    width = std::max(width, std::min(text + text / 2, widest));
    // A longest word is never broken.
    width = std::max(width, font.measure(item.caption, 1).width);
    if (item.kind != Kind::Button) {
      run = 0;
      continue;
    }
    run += ButtonSize(item, font, AnyWidth).width + (run > 0 ? font.units.Across(ButtonGap) : 0);
    // A run that is wider than that is broken into rows instead.
    if (run <= widest) width = std::max(width, run);
    width = std::max(width, ButtonSize(item, font, AnyWidth).width);
  }
  return width;
}

}  // namespace

Size PreferredSize(const std::vector<Item>& items, const Font& font, int leastWidth, Size most) {
  const int margins = 2 * font.units.Across(Margin);
  const int width = std::min(std::max(ContentWidth(items, font) + margins, leastWidth), most.width);
  const int least = LeastSize(items, font, width).height;
  const int usual = Column(items, font, width, RowsHeight(font, UsualRows), 0).height();
  return {width, std::max(least, std::min(usual, most.height))};
}

Size LeastSize(const std::vector<Item>& items, const Font& font, int width) {
  return {width, Column(items, font, width, RowsHeight(font, LeastRows), 0).height()};
}

std::vector<Place> Arrange(const std::vector<Item>& items, const Font& font, Size client) {
  const auto growers = static_cast<int>(std::count_if(items.begin(), items.end(), Grows));
  int growerHeight = RowsHeight(font, LeastRows);
  int rest = 0;
  if (growers > 0) {
    // What the window has beyond its least height goes to the lists and pages.
    const int spare = std::max(0, client.height - LeastSize(items, font, client.width).height);
    growerHeight += spare / growers;
    rest = spare % growers;
  }
  return Column(items, font, client.width, growerHeight, rest).places();
}

}  // namespace Platform::Layout
