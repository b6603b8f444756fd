#include "tools/InstallerSigning.h"

#include "base/Ecdsa.h"
#include "platform/Files.h"
#include "platform/Signature.h"
#include "update/Versions.h"

namespace InstallerSigning {

namespace {

constexpr const char* InstallerFile = "software\\sk2up.exe";
constexpr const char* SignatureFile = "software\\sk2up.exe.sig";

// What the folder brings along; empty if it is no signature by its size alone.
std::string SignatureInFolder(const std::string& folder) {
  const std::string path = folder + "\\" + SignatureFile;
  const auto stamp = Platform::StampOf(path);
  if (!stamp || stamp->size > Ecdsa::LongestDer) return "";
  return Platform::ReadWholeFile(path).value_or("");
}

}  // namespace

void Sign(const std::string& folder, const SiteState& site, const Keys& keys,
          SiteFiles::Files& files, Catalogue::Faults& faults) {
  const auto installer = files.find(SiteFiles::PathOf(Versions::InstallerPath));
  if (keys.packsKey.empty() || installer == files.end()) return;
  const std::string path = SiteFiles::PathOf(Versions::SignaturePath);
  const auto isRight = [&](const std::string& signature) {
    return Platform::IsSignatureRight(installer->second.sum, signature, keys.packsKey);
  };
  if (keys.keyFile.empty()) {
    if (!files.contains(path)) {
      faults.push_back({InstallerFile,
                        "It is not signed, and players' packs would refuse it: publish with --key, "
                        "or lay its signature beside it as sk2up.exe.sig."});
    } else if (!isRight(SignatureInFolder(folder))) {
      faults.push_back({SignatureFile,
                        "It is not the signature of sk2up.exe by the key that players' packs have: "
                        "they would refuse the installer."});
    }
    return;
  }
  if (files.contains(path)) {
    faults.push_back({SignatureFile, "It is made by --key, and must not be here itself."});
    return;
  }
  std::string signature = site.ServedText(path);
  if (!isRight(signature)) signature = Platform::SignatureOf(installer->second.sum, keys.keyFile);
  if (!isRight(signature)) {
    faults.push_back(
        {InstallerFile,
         "The private key is not that of the public key that players' packs have: they "
         "would refuse the installer."});
    return;
  }
  files[path] = SiteFiles::Made(signature);
}

}  // namespace InstallerSigning
