#include "update/InstallerSignature.h"

#include "base/Ecdsa.h"
#include "internet/Internet.h"
#include "internet/TemporaryFile.h"
#include "platform/FileSum.h"
#include "platform/Files.h"
#include "platform/Signature.h"
#include "update/UpdateTexts.h"

namespace InstallerSignature {

namespace {

// The beginning of a file, with a byte more than any signature has: what is longer is none,
// however long it is.
std::string Beginning(const std::string& path) {
  Platform::FileReader file(path);
  std::string bytes(Ecdsa::LongestDer + 1, '\0');
  size_t size = 0;
  while (const size_t count = file.Read(bytes.data() + size, bytes.size() - size)) size += count;
  bytes.resize(size);
  return bytes;
}

}  // namespace

const LangText* FaultOf(const std::string& url, const std::string& installer,
                        const std::string& key) {
  const TemporaryFile signature("signature.tmp");
  // A copy that the system has kept would be that of an older installer.
  Internet::DownloadURLToFile(url + Ending, signature.path(), false);
  if (!Platform::FileExists(signature.path())) return &UpdateTexts.UpdateSignatureMissing;
  const bool isRight =
      Platform::IsSignatureRight(SumOfFile(installer), Beginning(signature.path()), key);
  return isRight ? nullptr : &UpdateTexts.UpdateSignatureWrong;
}

}  // namespace InstallerSignature
