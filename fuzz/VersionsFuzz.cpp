// Version records of any bytes: they give a version or a code, and a version is one that can be
// compared or fails as it is said to.
#include <string>

#include "base/RuntimeError.h"
#include "fuzz/Require.h"
#include "machine/simulated/Machine.h"
#include "update/Versions.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const Simulated::Machine machine;
  const std::string records(reinterpret_cast<const char*>(data), size);
  const std::string version = Versions::VersionIn(records, "sk2up", "=");
  Require(version.find('\r') == std::string::npos);
  Platform::ProgramVersion program;
  program.major = 1;
  for (const std::string& text : {version, records}) {
    try {
      const Versions::Comparison comparison = Versions::Compare(text, program);
      Require(comparison >= Versions::Invalid && comparison <= Versions::Newer);
    } catch (const RuntimeError& error) {
      Require(error.number() == RuntimeError::Overflow);
    }
  }
  return 0;
}
