#include "platform/Signature.h"

#include <optional>

#include "base/RuntimeError.h"
#include "base/SignatureTexts.h"
#include "machine/openssl/Ecdsa.h"
#include "machine/simulated/Machine.h"
#include "platform/Files.h"

namespace Platform {

namespace {

// What Windows has for a key that is none.
constexpr uint32_t InvalidParameter = 0xC000000D;

}  // namespace

bool VerifyHash(const std::string& hash, const std::string& signature, const std::string& key) {
  const std::optional<bool> isRight = OpenSsl::Verify(hash, signature, key);
  if (!isRight || Simulated::TheMachine().faults.Strikes("VerifyHash")) {
    throw RuntimeError(RuntimeError::DeviceError, "",
                       {SignatureTexts.CheckingSignature, InvalidParameter});
  }
  return *isRight;
}

std::string SignHash(const std::string& hash, const std::string& keyFile) {
  const std::string pem = ReadWholeFile(keyFile).value_or("");
  std::optional<std::string> signature = OpenSsl::Sign(hash, pem);
  if (!signature || Simulated::TheMachine().faults.Strikes("SignHash " + keyFile)) {
    throw RuntimeError(RuntimeError::DeviceError, NoPrivateKey, keyFile);
  }
  return *std::move(signature);
}

}  // namespace Platform
