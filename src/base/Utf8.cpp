#include "base/Utf8.h"

namespace Utf8 {

namespace {

// The smallest character that needs a form of that many bytes.
constexpr char32_t Smallest[] = {0, 0, 0x80, 0x800, 0x10000};

size_t LengthByFirstByte(unsigned char first) {
  if (first < 0x80) return 1;
  // C0 and C1 too; what they would begin is refused as longer than it need be.
  if (first >= 0xC0 && first < 0xE0) return 2;
  if (first >= 0xE0 && first < 0xF0) return 3;
  if (first >= 0xF0 && first < 0xF8) return 4;
  return 0;
}

char32_t Decode(std::string_view text, size_t length) {
  const auto first = static_cast<unsigned char>(text[0]);
  if (length == 1) return first;
  char32_t character = first & (0xFFU >> (length + 1));
  for (size_t i = 1; i < length; ++i) {
    character = character << 6 | (static_cast<unsigned char>(text[i]) & 0x3FU);
  }
  return character;
}

}  // namespace

size_t CharacterLength(std::string_view text) {
  if (text.empty()) return 0;
  const size_t length = LengthByFirstByte(static_cast<unsigned char>(text[0]));
  if (length == 0 || length > text.size()) return 0;
  for (size_t i = 1; i < length; ++i) {
    if ((static_cast<unsigned char>(text[i]) & 0xC0) != 0x80) return 0;
  }
  const char32_t character = Decode(text, length);
  const bool isSurrogate = character >= 0xD800 && character <= 0xDFFF;
  return character < Smallest[length] || character > 0x10FFFF || isSurrogate ? 0 : length;
}

char32_t FirstCharacter(std::string_view text) {
  return Decode(text, CharacterLength(text));
}

void Append(char32_t character, std::string& text) {
  if (character < 0x80) {
    text += static_cast<char>(character);
    return;
  }
  constexpr unsigned Starts[] = {0x00, 0xC0, 0xE0, 0xF0};
  const int more = character < 0x800 ? 1 : character < 0x10000 ? 2 : 3;
  text += static_cast<char>(Starts[more] | character >> (6 * more));
  for (int i = more; i-- > 0;) text += static_cast<char>(0x80U | (character >> (6 * i) & 0x3FU));
}

bool IsWhole(std::string_view text) {
  while (!text.empty()) {
    const size_t length = CharacterLength(text);
    if (length == 0) return false;
    text.remove_prefix(length);
  }
  return true;
}

}  // namespace Utf8
