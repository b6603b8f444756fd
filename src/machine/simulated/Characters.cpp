#include "platform/Characters.h"

#include <algorithm>

#include "base/Utf8.h"
#include "machine/simulated/Machine.h"

namespace Platform {

namespace {

using Simulated::TheMachine;

constexpr int CodePageUtf8 = 65001;
constexpr char32_t Replacement = 0xFFFD;
// What stands in Unicode for a character of two bytes, whose real numbers only tables know: a place
// of its own among those that are left to private use.
constexpr char32_t FirstOfTwoBytes = 0xF0000;
// What the Western page has between 0x80 and 0x9F.
constexpr char32_t Western[] = {0x20AC, 0x81,   0x201A, 0x192,  0x201E, 0x2026, 0x2020, 0x2021,
                                0x2C6,  0x2030, 0x160,  0x2039, 0x152,  0x8D,   0x17D,  0x8F,
                                0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                0x2DC,  0x2122, 0x161,  0x203A, 0x153,  0x9D,   0x17E,  0x178};

unsigned char ByteAt(std::string_view text, size_t i) {
  return static_cast<unsigned char>(text[i]);
}

// The character with which a text of a page other than UTF-8 begins.
char32_t FirstCharacter(std::string_view text, size_t length) {
  if (length == 2) return FirstOfTwoBytes + (char32_t{ByteAt(text, 0)} << 8 | ByteAt(text, 1));
  const unsigned char byte = ByteAt(text, 0);
  return byte >= 0x80 && byte < 0xA0 ? Western[byte - 0x80] : byte;
}

void AppendInPage(char32_t character, std::string& text) {
  const auto* const western = std::find(std::begin(Western), std::end(Western), character);
  if (western != std::end(Western)) {
    text += static_cast<char>(0x80 + (western - std::begin(Western)));
  } else if (character < 0x100) {
    text += static_cast<char>(character);
  } else if (character > FirstOfTwoBytes && TheMachine().locale.codePage != 1252) {
    text += static_cast<char>((character - FirstOfTwoBytes) >> 8);
    text += static_cast<char>(character - FirstOfTwoBytes);
  } else {
    text += '?';
  }
}

}  // namespace

size_t WholeCharacterLength(std::string_view text) {
  if (TheMachine().locale.codePage == CodePageUtf8) return Utf8::CharacterLength(text);
  if (text.empty()) return 0;
  if (!TheMachine().locale.IsLeadByte(text[0])) return 1;
  const auto isControl = [](unsigned char c) { return c < ' ' || c == 0x7F; };
  return text.size() > 1 && !isControl(ByteAt(text, 1)) ? 2 : 0;
}

std::string ToUtf8(std::string_view text) {
  std::string utf8;
  for (size_t i = 0; i < text.size(); i += CharacterLength(text.substr(i))) {
    const std::string_view rest = text.substr(i);
    const size_t length = WholeCharacterLength(rest);
    if (TheMachine().locale.codePage == CodePageUtf8 && length > 0) {
      utf8.append(rest.substr(0, length));
    } else {
      Utf8::Append(length > 0 ? FirstCharacter(rest, length) : Replacement, utf8);
    }
  }
  return utf8;
}

std::string FromUtf8(std::string_view utf8) {
  std::string text;
  const bool isUtf8 = TheMachine().locale.codePage == CodePageUtf8;
  while (!utf8.empty()) {
    const size_t length = Utf8::CharacterLength(utf8);
    const char32_t character = length > 0 ? Utf8::FirstCharacter(utf8) : Replacement;
    if (isUtf8) {
      Utf8::Append(character, text);
    } else {
      AppendInPage(character, text);
    }
    utf8.remove_prefix(std::max<size_t>(length, 1));
  }
  return text;
}

}  // namespace Platform
