// Whether players' packs and games can use an archive.
#pragma once

#include <string>
#include <vector>

namespace PackageJudge {

// What is wrong with an archive that is offered as one of that kind, each as a sentence, with the
// name of the faulty file in it and its line; nothing if it is good. It must be safe to unpack; one
// of a car or a track must hold exactly that, without a fault. Fails where it cannot be read.
std::vector<std::string> FaultsOf(const std::string& archive, int kind);

}  // namespace PackageJudge
