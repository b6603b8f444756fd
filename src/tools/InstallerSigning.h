// The signature that is published beside the pack's installer, so that players' packs start it.
#pragma once

#include <string>

#include "tools/Catalogue.h"
#include "tools/SiteFiles.h"
#include "tools/SiteState.h"

namespace InstallerSigning {

struct Keys {
  // The public key that players' packs were built with, as Ecdsa::KeyInPem gives it; empty if they
  // ask for no signature, and then nothing of the following is done.
  std::string packsKey;
  // The path of the PEM file with the private key to it; empty if the folder "software" has the
  // signature already.
  std::string keyFile;
};

// Adds the signature of the installer to the files, if there is an installer, and judges it as
// players' packs do: one that they would refuse is added to the faults.
//   site    whose signature is kept if it is still right, so that nothing changes where nothing has
//           to: signing anew gives another one each time.
//   folder  that of the files.
// Fails as Platform::IsSignatureRight, Platform::SignatureOf and SiteState::ServedText do.
void Sign(const std::string& folder, const SiteState& site, const Keys& keys,
          SiteFiles::Files& files, Catalogue::Faults& faults);

}  // namespace InstallerSigning
