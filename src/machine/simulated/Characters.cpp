#include "platform/Characters.h"

#include <algorithm>

#include "base/Utf8.h"
#include "base/WesternPage.h"
#include "machine/simulated/Machine.h"

namespace Platform {

namespace {

using Simulated::TheMachine;

constexpr int CodePageUtf8 = 65001;
constexpr char32_t Replacement = 0xFFFD;
// What stands in Unicode for a character of two bytes, whose real numbers only tables know: a place
// of its own among those that are left to private use.
constexpr char32_t FirstOfTwoBytes = 0xF0000;

unsigned char ByteAt(std::string_view text, size_t i) {
  return static_cast<unsigned char>(text[i]);
}

// The character with which a text of a page other than UTF-8 begins.
char32_t FirstCharacter(std::string_view text, size_t length) {
  if (length == 2) return FirstOfTwoBytes + (char32_t{ByteAt(text, 0)} << 8 | ByteAt(text, 1));
  return WesternPage::CharacterOf(ByteAt(text, 0));
}

void AppendInPage(char32_t character, std::string& text) {
  if (const auto byte = WesternPage::ByteOf(character)) {
    text += *byte;
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
