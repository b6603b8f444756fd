#include "base/Text.h"

#include <algorithm>

namespace Text {

std::string_view Trim(std::string_view text) {
  const size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string LowerAscii(std::string_view text) {
  std::string lower(text);
  // By hand: what the C library takes for a letter depends on the user's locale.
  std::transform(lower.begin(), lower.end(), lower.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
  return lower;
}

std::string Replace(std::string_view text, std::string_view piece, std::string_view replacement) {
  std::string result;
  // What is put in is not searched again, so that it may hold the piece itself.
  size_t from = 0;
  for (size_t at; (at = text.find(piece, from)) != std::string_view::npos;
       from = at + piece.size()) {
    result.append(text, from, at - from).append(replacement);
  }
  return result.append(text, from);
}

}  // namespace Text
