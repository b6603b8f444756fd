// The key that the maker signs updates with, as it was set when the program was built.
#pragma once

#include <optional>
#include <string>

namespace Updater {

// The public key, as Platform::IsSignatureRight takes it; nothing if the program was built without,
// which its file says too. Fails with RuntimeError InvalidCall if the file says neither: then
// nobody can tell whose an update is.
std::optional<std::string> UpdateKey();

}  // namespace Updater
