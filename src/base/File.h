// The parts of a path. Paths use "\" between folders.
#pragma once

#include <string>
#include <string_view>

namespace File {

// The path up to, and not including, its last backslash; empty if there is none.
std::string FolderOf(std::string_view path);

// The path behind its last backslash; the whole path if there is none.
std::string NameOf(std::string_view path);

// True if the path ends in an extension such as ".trk", whatever its letter case.
bool HasExtension(std::string_view path, std::string_view extension);

}  // namespace File
