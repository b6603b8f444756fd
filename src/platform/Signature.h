// Signatures by which a file is known to be its maker's: ECDSA on the curve P-256 over the file's
// SHA-256 checksum, as "openssl dgst -sha256 -sign" makes them.
#pragma once

#include <string>
#include <string_view>

#include "base/LangText.h"
#include "platform/FileSum.h"

namespace Platform {

inline constexpr LangText NoPrivateKey{
    "", "The file was not taken for the private key of a pair for ECDSA on the curve P-256."};

// True if whoever has the private key to a public one has signed what has that checksum.
//   signature  in DER. Whatever is none is not right; it is never a failure.
//   key        the public key, as Ecdsa::KeyInPem gives it.
// Fails with RuntimeError DeviceError if the system cannot judge signatures, or does not take the
// key; one that is no point of the curve some take, and nothing is right then.
bool IsSignatureRight(const FileSum& sum, std::string_view signature, const std::string& key);

// The signature of what has that checksum, in DER; another one each time.
//   keyFile  path of a PEM file with the private key.
// Fails with RuntimeError FileNotFound; with DeviceError if the file holds no such key, or the
// system cannot sign; and as ReadWholeFile does.
std::string SignatureOf(const FileSum& sum, const std::string& keyFile);

// What a machine does for them, by its own cryptography. A hash is the 32 bytes of a checksum, a
// signature the 64 bytes of r and s.
// Fails with RuntimeError DeviceError, as IsSignatureRight.
bool VerifyHash(const std::string& hash, const std::string& signature, const std::string& key);
// Gives DER. Fails with RuntimeError DeviceError and the file, as SignatureOf.
std::string SignHash(const std::string& hash, const std::string& keyFile);

}  // namespace Platform
