#include "platform/Signature.h"

#include <optional>

#include "base/Ecdsa.h"
#include "base/RuntimeError.h"
#include "platform/Files.h"

namespace Platform {

namespace {

std::string HashOf(const FileSum& sum) {
  const auto value = [](char digit) { return digit <= '9' ? digit - '0' : digit - 'a' + 10; };
  std::string hash;
  for (size_t i = 0; i + 1 < sum.sha256.size(); i += 2) {
    hash += static_cast<char>(value(sum.sha256[i]) << 4 | value(sum.sha256[i + 1]));
  }
  return hash;
}

}  // namespace

bool IsSignatureRight(const FileSum& sum, std::string_view signature, const std::string& key) {
  const std::optional<std::string> numbers = Ecdsa::SignatureInDer(signature);
  return numbers && VerifyHash(HashOf(sum), *numbers, key);
}

std::string SignatureOf(const FileSum& sum, const std::string& keyFile) {
  if (!StampOf(keyFile)) throw RuntimeError(RuntimeError::FileNotFound, keyFile);
  return SignHash(HashOf(sum), keyFile);
}

}  // namespace Platform
