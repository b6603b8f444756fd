// The parts of a path in the system code page. Paths use "\" between folders; a byte "\" that is
// the second half of a character is none.
#pragma once

#include <string>
#include <string_view>

namespace Platform {

// The path up to, and not including, its last backslash; empty if there is none.
std::string FolderOf(std::string_view path);

// The path behind its last backslash; the whole path if there is none.
std::string NameOf(std::string_view path);

// True if the path ends in an extension such as ".trk", whatever its letter case.
bool HasExtension(std::string_view path, std::string_view extension);

}  // namespace Platform
