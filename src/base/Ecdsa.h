// What keys and signatures of ECDSA on the curve P-256 look like in files.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace Ecdsa {

// The bytes of a coordinate of the curve, and of each of the two numbers of a signature.
inline constexpr size_t NumberSize = 32;

// No signature in DER is longer.
inline constexpr size_t LongestDer = 72;

// The point that is the public key in a PEM file, as "openssl ec -pubout" writes it: x and y, each
// of NumberSize bytes, the highest first. Nothing if the text holds no such key, or one of another
// curve or in another form. Whether the point lies on the curve is not looked at.
std::optional<std::string> KeyInPem(std::string_view text);

// The two numbers of a signature in DER, as "openssl dgst -sign" writes it: r and s, each of
// NumberSize bytes, the highest first. There is only one right form for each: whatever else the
// bytes are, longer ones too, gives nothing.
std::optional<std::string> SignatureInDer(std::string_view der);

}  // namespace Ecdsa
