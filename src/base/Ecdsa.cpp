#include "base/Ecdsa.h"

#include <cstdint>

namespace Ecdsa {

namespace {

constexpr std::string_view KeyBegin = "-----BEGIN PUBLIC KEY-----";
constexpr std::string_view KeyEnd = "-----END PUBLIC KEY-----";

// What stands before the point in every such key, as Base64: that it is one of the curve P-256, its
// length, and that both coordinates follow. It ends where one of the groups of Base64 does.
constexpr std::string_view PointBegin = "MFkwEwYHKoZIzj0CAQYIKoZIzj0DAQcDQgAE";

constexpr char SequenceTag = 0x30;
constexpr char IntegerTag = 0x02;

bool IsBlank(char c) {
  return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

// -1 if the character is none of Base64.
int ValueOf(char c) {
  constexpr std::string_view Alphabet =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  const size_t at = Alphabet.find(c);
  return at == std::string_view::npos ? -1 : static_cast<int>(at);
}

// As many bytes as the characters hold; nothing if one of them is none of Base64.
std::optional<std::string> FromBase64(std::string_view text) {
  std::string bytes;
  uint32_t bits = 0;
  int count = 0;
  for (const char c : text) {
    const int value = ValueOf(c);
    if (value < 0) return std::nullopt;
    bits = bits << 6 | static_cast<uint32_t>(value);
    count += 6;
    if (count < 8) continue;
    count -= 8;
    bytes += static_cast<char>(bits >> count);
  }
  return bytes;
}

// Takes the next number off the bytes, filled up to NumberSize. Nothing if there is none: it must
// be positive, and no byte longer than it has to be.
std::optional<std::string> TakeNumber(std::string_view& der) {
  if (der.size() < 3 || der[0] != IntegerTag) return std::nullopt;
  const auto length = static_cast<unsigned char>(der[1]);
  if (length == 0 || length > NumberSize + 1 || length > der.size() - 2) return std::nullopt;
  std::string_view number = der.substr(2, length);
  der.remove_prefix(2 + length);
  const auto isNegative = [](char first) { return (first & 0x80) != 0; };
  if (isNegative(number[0])) return std::nullopt;
  if (number[0] == 0) {
    // Only there to keep the number from being read as a negative one; zero is no such number.
    if (number.size() == 1 || !isNegative(number[1])) return std::nullopt;
    number.remove_prefix(1);
  }
  if (number.size() > NumberSize) return std::nullopt;
  return std::string(NumberSize - number.size(), '\0').append(number);
}

}  // namespace

std::optional<std::string> KeyInPem(std::string_view text) {
  const size_t begin = text.find(KeyBegin);
  if (begin == std::string_view::npos) return std::nullopt;
  text.remove_prefix(begin + KeyBegin.size());
  const size_t end = text.find(KeyEnd);
  if (end == std::string_view::npos) return std::nullopt;
  std::string base64;
  for (const char c : text.substr(0, end)) {
    if (!IsBlank(c)) base64 += c;
  }
  constexpr std::string_view Filling = "==";
  if (!base64.starts_with(PointBegin) || !base64.ends_with(Filling)) return std::nullopt;
  base64.resize(base64.size() - Filling.size());
  std::optional<std::string> point = FromBase64(std::string_view(base64).substr(PointBegin.size()));
  return point && point->size() == 2 * NumberSize ? point : std::nullopt;
}

std::optional<std::string> SignatureInDer(std::string_view der) {
  if (der.size() < 2 || der.size() > LongestDer || der[0] != SequenceTag) return std::nullopt;
  if (static_cast<unsigned char>(der[1]) != der.size() - 2) return std::nullopt;
  der.remove_prefix(2);
  const std::optional<std::string> r = TakeNumber(der);
  const std::optional<std::string> s = r ? TakeNumber(der) : std::nullopt;
  if (!s || !der.empty()) return std::nullopt;
  return *r + *s;
}

}  // namespace Ecdsa
