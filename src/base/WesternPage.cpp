#include "base/WesternPage.h"

#include <algorithm>
#include <iterator>

namespace WesternPage {

namespace {

// What the page has between 0x80 and 0x9F; everywhere else its bytes are those of Unicode.
constexpr unsigned char FirstOfItsOwn = 0x80;
constexpr char32_t Own[] = {0x20AC, 0x81,   0x201A, 0x192,  0x201E, 0x2026, 0x2020, 0x2021,
                            0x2C6,  0x2030, 0x160,  0x2039, 0x152,  0x8D,   0x17D,  0x8F,
                            0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                            0x2DC,  0x2122, 0x161,  0x203A, 0x153,  0x9D,   0x17E,  0x178};

bool IsOfItsOwn(char32_t number) {
  return number >= FirstOfItsOwn && number < FirstOfItsOwn + std::size(Own);
}

}  // namespace

char32_t CharacterOf(unsigned char byte) {
  return IsOfItsOwn(byte) ? Own[byte - FirstOfItsOwn] : byte;
}

std::optional<char> ByteOf(char32_t character) {
  const auto* const own = std::find(std::begin(Own), std::end(Own), character);
  if (own != std::end(Own)) return static_cast<char>(FirstOfItsOwn + (own - std::begin(Own)));
  if (character < 0x100 && !IsOfItsOwn(character)) return static_cast<char>(character);
  return std::nullopt;
}

char SmallLetter(char byte) {
  const auto number = static_cast<unsigned char>(byte);
  const bool isAscii = number >= 'A' && number <= 'Z';
  const bool isAccented = number >= 0xC0 && number <= 0xDE && number != 0xD7;  // the times sign
  if (isAscii || isAccented) return static_cast<char>(number + 0x20);
  switch (number) {
    case 0x8A:
    case 0x8C:
    case 0x8E: return static_cast<char>(number + 0x10);
    case 0x9F: return '\xFF';
    default: return byte;
  }
}

}  // namespace WesternPage
