// Signatures and keys of any bytes: what is taken for one is its only form, and nothing is judged
// right that was not signed.
#include <string>
#include <string_view>

#include "base/Ecdsa.h"
#include "base/RuntimeError.h"
#include "fuzz/Require.h"
#include "machine/simulated/Machine.h"
#include "platform/Signature.h"

namespace {

// A number of a signature in DER: without zeros in front, but for one where it would be negative.
std::string Encoded(std::string_view number) {
  number.remove_prefix(number.find_first_not_of('\0'));
  std::string bytes((number[0] & 0x80) != 0 ? 1 : 0, '\0');
  bytes += number;
  return "\x02" + std::string(1, static_cast<char>(bytes.size())) + bytes;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const Simulated::Machine machine;
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  if (const auto numbers = Ecdsa::SignatureInDer(bytes)) {
    Require(numbers->size() == 2 * Ecdsa::NumberSize);
    const std::string both = Encoded(numbers->substr(0, Ecdsa::NumberSize)) +
                             Encoded(numbers->substr(Ecdsa::NumberSize));
    Require(bytes == "\x30" + std::string(1, static_cast<char>(both.size())) + both);
    // A key of the curve, whose owner has signed nothing: the point that the curve begins with.
    const std::string key(
        "\x6B\x17\xD1\xF2\xE1\x2C\x42\x47\xF8\xBC\xE6\xE5\x63\xA4\x40\xF2"
        "\x77\x03\x7D\x81\x2D\xEB\x33\xA0\xF4\xA1\x39\x45\xD8\x98\xC2\x96"
        "\x4F\xE3\x42\xE2\xFE\x1A\x7F\x9B\x8E\xE7\xEB\x4A\x7C\x0F\x9E\x16"
        "\x2B\xCE\x33\x57\x6B\x31\x5E\xCE\xCB\xB6\x40\x68\x37\xBF\x51\xF5",
        64);
    Require(!Platform::IsSignatureRight(SumOfText("something else"), bytes, key));
  }
  if (const auto key = Ecdsa::KeyInPem(bytes)) Require(key->size() == 2 * Ecdsa::NumberSize);
  return 0;
}
