// An installer with signatures that the openssl program has made with the tests' own keys, which
// stand in tests/keys.
#pragma once

#include <string>
#include <string_view>

#include "machine/simulated/Executable.h"
#include "platform/Resources.h"
#include "tests/platform/SignatureExamples.h"

namespace SignedInstaller {

// In the program's file: that updates are signed with that key.
inline Simulated::Resource KeyResource(const char* pem = SignatureExamples::MakerKey) {
  return {Platform::DataResource, "UPDATEKEY", pem};
}

inline const std::string Bytes = SignatureExamples::Contents;
inline const std::string Signature = SignatureExamples::FromHex(SignatureExamples::OfTheMaker[0]);

}  // namespace SignedInstaller
