// The signature that an installer comes with: a file beside it on the maker's server.
#pragma once

#include <string>

#include "base/LangText.h"

namespace InstallerSignature {

// What is behind the installer's address in that of its signature.
inline constexpr const char* Ending = ".sig";

// Fetches the signature of an installer and judges it.
//   url        of the installer.
//   installer  path of the file that was fetched. It must be guarded until it is started, so that
//              what is started is what was judged.
//   key        the maker's, as Platform::IsSignatureRight takes it.
// Returns what is told of a signature that has not come, or is not right; null if it is right.
// Fails as Platform::FileReader and Platform::IsSignatureRight do.
const LangText* FaultOf(const std::string& url, const std::string& installer,
                        const std::string& key);

}  // namespace InstallerSignature
