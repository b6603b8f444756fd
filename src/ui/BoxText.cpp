#include "ui/BoxText.h"

#include <string_view>

#include "base/Text.h"
#include "platform/Characters.h"

namespace Platform {

namespace {

constexpr std::string_view Omission = " ... ";

bool IsControl(char c) {
  return static_cast<unsigned char>(c) < ' ' || c == '\x7F';
}

bool IsLineEndAt(std::string_view text, size_t i) {
  return text.substr(i, Text::LineEnd.size()) == Text::LineEnd;
}

// The bytes that belong together: a line end, or a character.
size_t LengthAt(std::string_view text, size_t i) {
  if (IsLineEndAt(text, i)) return Text::LineEnd.size();
  return CharacterLength(text.substr(i));
}

std::string WithoutControls(std::string_view text) {
  std::string visible;
  visible.reserve(text.size());
  for (size_t i = 0; i < text.size();) {
    const size_t length = LengthAt(text, i);
    // Half a character would take the next one with it.
    const bool isBroken = WholeCharacterLength(std::string_view(text).substr(i)) == 0;
    const bool isShown = text[i] == '\t' || text[i] == '\n' || IsLineEndAt(text, i);
    const bool isHidden = IsControl(text[i]) && !isShown;
    visible.append(isBroken || isHidden ? "?" : text.substr(i, length));
    i += length;
  }
  return visible;
}

}  // namespace

std::string BoxText(const std::string& text, size_t longest) {
  std::string visible = WithoutControls(text);
  if (visible.size() <= longest) return visible;
  const size_t half = (longest - Omission.size()) / 2;
  size_t headEnd = 0;
  size_t tailBegin = 0;
  // In steps of whole characters, so that neither end is cut within one.
  while (visible.size() - tailBegin > half) {
    tailBegin += LengthAt(visible, tailBegin);
    if (tailBegin <= half) headEnd = tailBegin;
  }
  return visible.substr(0, headEnd).append(Omission) + visible.substr(tailBegin);
}

}  // namespace Platform
