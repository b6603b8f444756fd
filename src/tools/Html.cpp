#include "tools/Html.h"

namespace Html {

namespace {

bool IsPlain(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
         std::string_view("/-._~").find(c) != std::string_view::npos;
}

}  // namespace

std::string Escaped(std::string_view text) {
  std::string escaped;
  for (const char c : text) {
    switch (c) {
      case '&': escaped += "&amp;"; break;
      case '<': escaped += "&lt;"; break;
      case '>': escaped += "&gt;"; break;
      case '"': escaped += "&quot;"; break;
      case '\'': escaped += "&#39;"; break;
      default: escaped += c;
    }
  }
  return escaped;
}

std::string Address(std::string_view path) {
  constexpr const char* Digits = "0123456789ABCDEF";
  std::string address;
  for (const char c : path) {
    if (IsPlain(c)) {
      address += c;
      continue;
    }
    const auto byte = static_cast<unsigned char>(c);
    (address += '%') += Digits[byte >> 4];
    address += Digits[byte & 15];
  }
  return address;
}

}  // namespace Html
