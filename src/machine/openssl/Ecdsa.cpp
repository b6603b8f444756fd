#include "machine/openssl/Ecdsa.h"

#include <openssl/bn.h>
#include <openssl/core_names.h>
#include <openssl/ec.h>
#include <openssl/evp.h>
#include <openssl/param_build.h>
#include <openssl/pem.h>

#include <array>
#include <memory>
#include <string_view>
#include <vector>

namespace OpenSsl {

namespace {

constexpr size_t NumberSize = 32;
constexpr const char* Curve = "prime256v1";

template <auto Free>
struct Releases {
  template <class T>
  void operator()(T* object) const {
    Free(object);
  }
};
template <class T, auto Free>
using Owned = std::unique_ptr<T, Releases<Free>>;

using Key = Owned<EVP_PKEY, EVP_PKEY_free>;
using Context = Owned<EVP_PKEY_CTX, EVP_PKEY_CTX_free>;

const unsigned char* BytesOf(std::string_view text) {
  return reinterpret_cast<const unsigned char*>(text.data());
}

Key PublicKey(const std::string& key) {
  // That both coordinates follow.
  std::string point = "\x04" + key;
  std::string curve = Curve;
  std::array<OSSL_PARAM, 3> parameters = {
      OSSL_PARAM_construct_utf8_string(OSSL_PKEY_PARAM_GROUP_NAME, curve.data(), 0),
      OSSL_PARAM_construct_octet_string(OSSL_PKEY_PARAM_PUB_KEY, point.data(), point.size()),
      OSSL_PARAM_construct_end()};
  const Context context(EVP_PKEY_CTX_new_from_name(nullptr, "EC", nullptr));
  EVP_PKEY* made = nullptr;
  if (!context || EVP_PKEY_fromdata_init(context.get()) <= 0 ||
      EVP_PKEY_fromdata(context.get(), &made, EVP_PKEY_PUBLIC_KEY, parameters.data()) <= 0) {
    return nullptr;
  }
  return Key(made);
}

// The form that OpenSSL takes; the same signature has only one.
std::vector<unsigned char> ToDer(const std::string& signature) {
  const Owned<ECDSA_SIG, ECDSA_SIG_free> numbers(ECDSA_SIG_new());
  BIGNUM* const r = BN_bin2bn(BytesOf(signature), NumberSize, nullptr);
  BIGNUM* const s = BN_bin2bn(BytesOf(signature) + NumberSize, NumberSize, nullptr);
  // They belong to it from now on.
  ECDSA_SIG_set0(numbers.get(), r, s);
  std::vector<unsigned char> der(static_cast<size_t>(i2d_ECDSA_SIG(numbers.get(), nullptr)));
  unsigned char* end = der.data();
  i2d_ECDSA_SIG(numbers.get(), &end);
  return der;
}

bool IsOfTheCurve(const Key& key) {
  std::array<char, 80> name{};
  return EVP_PKEY_get_group_name(key.get(), name.data(), name.size(), nullptr) == 1 &&
         std::string_view(name.data()) == Curve;
}

}  // namespace

std::optional<bool> Verify(const std::string& hash, const std::string& signature,
                           const std::string& key) {
  const Key publicKey = PublicKey(key);
  if (!publicKey) return std::nullopt;
  const Context context(EVP_PKEY_CTX_new(publicKey.get(), nullptr));
  const std::vector<unsigned char> der = ToDer(signature);
  return context && EVP_PKEY_verify_init(context.get()) == 1 &&
         EVP_PKEY_verify(context.get(), der.data(), der.size(), BytesOf(hash), hash.size()) == 1;
}

std::optional<std::string> Sign(const std::string& hash, const std::string& privateKey) {
  const Owned<BIO, BIO_free> text(
      BIO_new_mem_buf(privateKey.data(), static_cast<int>(privateKey.size())));
  const Key key(PEM_read_bio_PrivateKey(text.get(), nullptr, nullptr, nullptr));
  if (!key || !IsOfTheCurve(key)) return std::nullopt;
  const Context context(EVP_PKEY_CTX_new(key.get(), nullptr));
  std::array<unsigned char, 80> signature{};
  size_t size = signature.size();
  if (!context || EVP_PKEY_sign_init(context.get()) != 1 ||
      EVP_PKEY_sign(context.get(), signature.data(), &size, BytesOf(hash), hash.size()) != 1) {
    return std::nullopt;
  }
  return std::string(signature.begin(), signature.begin() + static_cast<std::ptrdiff_t>(size));
}

}  // namespace OpenSsl
