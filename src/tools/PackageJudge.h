// Whether players' packs can use an archive.
#pragma once

#include <string>
#include <vector>

namespace PackageJudge {

// What is wrong with an archive of that kind, each as a sentence; nothing if it is good. Fails as
// Platform::FileReader does.
std::vector<std::string> FaultsOf(const std::string& archive, int kind);

}  // namespace PackageJudge
