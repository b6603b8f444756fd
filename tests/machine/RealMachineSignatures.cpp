// Whether the system below can judge signatures.
#include "base/Ecdsa.h"
#include "base/RuntimeError.h"
#include "machine/win32/System.h"
#include "platform/Signature.h"
#include "tests/machine/TestMachine.h"
#include "tests/platform/SignatureExamples.h"

namespace TestMachine {

std::string LackOfSignatures() {
  // Windows has its cryptography always; Wine borrows that of GnuTLS.
  const HMODULE ntdll = GetModuleHandleA("ntdll.dll");
  if (!ntdll || !GetProcAddress(ntdll, "wine_get_version")) return "";
  try {
    Platform::IsSignatureRight(SumOfText(SignatureExamples::Contents),
                               SignatureExamples::FromHex(SignatureExamples::OfTheMaker[0]),
                               *Ecdsa::KeyInPem(SignatureExamples::MakerKey));
    return "";
  } catch (const RuntimeError&) {
    return "this Wine judges no signatures: it has no GnuTLS";
  }
}

}  // namespace TestMachine
