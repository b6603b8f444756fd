// Signatures that the openssl program has made of known contents, with two keys of the tests' own.
#pragma once

#include <string>
#include <string_view>

namespace SignatureExamples {

// Those in tests/keys.
inline constexpr const char* MakerKey =
    "-----BEGIN PUBLIC KEY-----\n"
    "MFkwEwYHKoZIzj0CAQYIKoZIzj0DAQcDQgAEVOjyH71ZCcxJE1ES+gZo2oxCfd6e\n"
    "9gfoCLQRPMPSxyDhGEu5NpQ2T2QgUJF+mp+OZaHuoFOd6jWXQGZRhjM4rw==\n"
    "-----END PUBLIC KEY-----\n";
inline constexpr const char* OtherKey =
    "-----BEGIN PUBLIC KEY-----\n"
    "MFkwEwYHKoZIzj0CAQYIKoZIzj0DAQcDQgAEr2FAxbz3wBnmY/VqQf/HqWrDG3ZP\n"
    "q0DSWmVtLvnObfAx7sRDaKVEtf/Q8mS6PwWxCadSX7xczi69k4oKxvatKQ==\n"
    "-----END PUBLIC KEY-----\n";

inline constexpr const char* Contents = "MZ installer";

// Of these contents: with both numbers, one of them or none of them a byte longer, because they
// would be negative otherwise, and with one of them a byte shorter.
inline constexpr const char* OfTheMaker[] = {
    "3045022073b8fd06ec2fe62d0098c2071a231792954939e0d714d29a78195b2461e825c1022100a3"
    "9e9bba4a87fd81a4028453baa74a4524268616ad15d335982cbc22bdca5ab0",
    "3045022100a216329c1b9f20fcc8e02fe64b221f913d32739ee8043b4b211a332a09eb16e302207d"
    "85ba79ee9fa8c1849043f600fa42268ccca2deb40bf5237166a6480cbd853a",
    "3046022100bc8dcef77a244c463924368dc5d08a328fdd4672a2f3f37a2372d2a3f23c8302022100"
    "b63c892b06e8469c1de175bb6171a0bbff58125f93e4767565f1831f462ccd30",
    "3044022033e30ce9dec23f14dac2f6f3a25794f87b7fa9768f1fa608e44d48b5006eac35022048b1"
    "b7827f2cbbd830c070c5224ee25fba77f761ec414eaa89ccb902e4d0fb6f",
    "304302206b8dc1171fe9a422570f19df53d1dd122a44d2a5603ae5763b1122a0c241d152021f183f"
    "67e6cb045f5658c29db9e801f400c08b4bc79b56f9515cd383a97d7405",
    "3043021f095536b4b8e28489fe76e1ed4d8f7ce8691a155364d1f13f3bdb26ffd0903302200e2cb9"
    "848ead3e0e29f124c8eab23a3d4c1b5e9c84095cf242439c92749e2e1c"};
inline constexpr const char* OfTheOther =
    "30440220381f7287f9176bd19b03c72468508c0c355b7dbdd73e19a966405b1b1dffb9aa02203eb2"
    "c09453253a74849996829d11b614c05728a7e0ec827a31ba8f301792a7f4";
// Of nothing, and of a million bytes, each of them seven more than the one before it.
inline constexpr const char* OfNothing =
    "304402201e0c962a3e97603b619d7ba2f69327eaa4be202aee12e97f80a31f5843c92c9e02201a9f"
    "0ba94541e32d0c1cfacf155820904cdc87384d65f0db9eaab3a1bd31fc7e";
inline constexpr const char* OfAMillionBytes =
    "30450220305e8e226acbea6635bc0c337eae6b9b6d02a838e180a479506d69f69675ac5f022100e5"
    "fc8ff2568a98aa13715206aef60dff7450fe9c4093824d0a8296bde182cae1";

inline std::string FromHex(std::string_view digits) {
  std::string bytes;
  for (; digits.size() > 1; digits.remove_prefix(2)) {
    bytes += static_cast<char>(std::stoi(std::string(digits.substr(0, 2)), nullptr, 16));
  }
  return bytes;
}

}  // namespace SignatureExamples
