#include "platform/Signature.h"

#include "machine/win32/System.h"

#include <bcrypt.h>

#include <cstring>
#include <memory>

#include "base/Ecdsa.h"
#include "base/SignatureTexts.h"
#include "machine/win32/Failure.h"
#include "machine/win32/SystemLibrary.h"

namespace Platform {

namespace {

SystemFunction<decltype(::BCryptOpenAlgorithmProvider)> BCryptOpenAlgorithmProvider(
    "bcrypt.dll", "BCryptOpenAlgorithmProvider");
SystemFunction<decltype(::BCryptCloseAlgorithmProvider)> BCryptCloseAlgorithmProvider(
    "bcrypt.dll", "BCryptCloseAlgorithmProvider");
SystemFunction<decltype(::BCryptImportKeyPair)> BCryptImportKeyPair("bcrypt.dll",
                                                                    "BCryptImportKeyPair");
SystemFunction<decltype(::BCryptDestroyKey)> BCryptDestroyKey("bcrypt.dll", "BCryptDestroyKey");
SystemFunction<decltype(::BCryptVerifySignature)> BCryptVerifySignature("bcrypt.dll",
                                                                        "BCryptVerifySignature");

void Require(NTSTATUS status) {
  if (!BCRYPT_SUCCESS(status)) {
    FailAt(SignatureTexts.CheckingSignature, static_cast<DWORD>(status));
  }
}

// The system's functions take no constant bytes, and change none of these.
unsigned char* BytesOf(const std::string& text) {
  return reinterpret_cast<unsigned char*>(const_cast<char*>(text.data()));
}

class Algorithm {
 public:
  Algorithm() {
    Require(BCryptOpenAlgorithmProvider(&handle_, BCRYPT_ECDSA_P256_ALGORITHM, nullptr, 0));
  }
  ~Algorithm() { BCryptCloseAlgorithmProvider(handle_, 0); }
  Algorithm(const Algorithm&) = delete;
  Algorithm& operator=(const Algorithm&) = delete;

  BCRYPT_ALG_HANDLE get() const { return handle_; }

 private:
  BCRYPT_ALG_HANDLE handle_ = nullptr;
};

class PublicKey {
 public:
  PublicKey(const Algorithm& algorithm, const std::string& point) {
    BCRYPT_ECCKEY_BLOB header{};
    header.dwMagic = BCRYPT_ECDSA_PUBLIC_P256_MAGIC;
    header.cbKey = Ecdsa::NumberSize;
    std::string blob(reinterpret_cast<const char*>(&header), sizeof header);
    blob += point;
    Require(BCryptImportKeyPair(algorithm.get(), nullptr, BCRYPT_ECCPUBLIC_BLOB, &handle_,
                                BytesOf(blob), static_cast<ULONG>(blob.size()), 0));
  }
  ~PublicKey() { BCryptDestroyKey(handle_); }
  PublicKey(const PublicKey&) = delete;
  PublicKey& operator=(const PublicKey&) = delete;

  BCRYPT_KEY_HANDLE get() const { return handle_; }

 private:
  BCRYPT_KEY_HANDLE handle_ = nullptr;
};

}  // namespace

bool VerifyHash(const std::string& hash, const std::string& signature, const std::string& key) {
  const Algorithm algorithm;
  const PublicKey publicKey(algorithm, key);
  // Whatever the system has against it, only one answer means that it is right.
  return BCryptVerifySignature(publicKey.get(), nullptr, BytesOf(hash),
                               static_cast<ULONG>(hash.size()), BytesOf(signature),
                               static_cast<ULONG>(signature.size()), 0) == 0;
}

}  // namespace Platform
