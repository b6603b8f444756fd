// Taking apart the texts that tests look at.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Texts {

inline bool Contains(std::string_view text, std::string_view piece) {
  return text.find(piece) != std::string_view::npos;
}

// The pieces between the separators: one more than there are separators.
inline std::vector<std::string> Split(std::string_view text, std::string_view separator) {
  std::vector<std::string> pieces;
  size_t from = 0;
  for (size_t at; (at = text.find(separator, from)) != std::string_view::npos;
       from = at + separator.size()) {
    pieces.emplace_back(text.substr(from, at - from));
  }
  pieces.emplace_back(text.substr(from));
  return pieces;
}

}  // namespace Texts
