// A line of any length, shortened to one of which the game's formats say the same.
#pragma once

#include <bitset>
#include <cstddef>
#include <deque>
#include <string>
#include <string_view>

// Takes a line piece by piece and keeps so much of it that a checker of "key=value" lines and of
// numbers comes to the verdict that it would give of the whole:
// - Of each field, as "=" separates them, a byte that is repeated more than LongestRun times is
//   kept LongestRun times. Blanks around a number and zeros before it mean nothing, and other
//   digits make it too large however many they are.
// - Of a field that is longer than LongestField and LongestTail all the same, the beginning and the
//   end are kept. A number of that many digits is too large without those between them, or so
//   precise that they do not count. A byte that is left out and does not occur in the beginning is
//   none of a number: "?" stands for such.
// - A line has three fields at most; the formats know two.
// Nothing that is kept of a long field is a key, a sound's name or a path that a file could have.
class ShortLine {
 public:
  static constexpr size_t LongestRun = 1 << 10;
  static constexpr size_t LongestField = 1 << 16;
  static constexpr size_t LongestTail = 1 << 10;

  void Append(std::string_view piece);

  // What is kept of the pieces so far.
  std::string text() const { return text_ + RestOfField(); }

 private:
  void Append(char c);
  std::string RestOfField() const;

  static constexpr int MostFields = 3;

  std::string text_;  // the fields before the last one, and the beginning of that
  int fields_ = 1;
  // Of the last field:
  size_t start_ = 0;        // where it begins in the text
  std::bitset<256> bytes_;  // those of its beginning
  std::deque<char> tail_;   // its last bytes, behind the beginning
  bool hasOthers_ = false;  // something else was left out between the two
  char last_ = 0;           // its last byte, and how often that was repeated
  size_t run_ = 0;
};
