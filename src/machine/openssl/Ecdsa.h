// Signatures by the system's OpenSSL, for the machines that Linux has.
#pragma once

#include <optional>
#include <string>

namespace OpenSsl {

// True if the signature, the 64 bytes of r and s, is that of the hash by the key, the 64 bytes of x
// and y. Nothing if that is no point of the curve P-256.
std::optional<bool> Verify(const std::string& hash, const std::string& signature,
                           const std::string& key);

// A signature of the hash in DER. Nothing if the text is no PEM file with a private key of the
// curve P-256. A key that is protected by a password asks for it at the terminal.
std::optional<std::string> Sign(const std::string& hash, const std::string& privateKey);

}  // namespace OpenSsl
