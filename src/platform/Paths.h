// The parts of a path in the system code page. Paths use "\" between folders; a byte "\" that is a
// later part of a character is none.
#pragma once

#include <string>
#include <string_view>

namespace Platform {

// The path up to, and not including, its last backslash; empty if there is none.
std::string FolderOf(std::string_view path);

// The path behind its last backslash; the whole path if there is none.
std::string NameOf(std::string_view path);

// False if the path is longer than 259 bytes, holds a character that no name can have, such as the
// "?" that stands for one that the code page lacks, or ends in the name of a device, such as "nul",
// "con.trk" or "Com1".
bool IsNameUsable(std::string_view path);

// True if the text, which may come from anywhere, is the name of one file in whatever folder it is
// put: usable as above, not empty, without folders, a drive or a stream, and without the dots and
// blanks at its end that the system would cut off. "." and ".." are none.
bool IsPlainFileName(std::string_view name);

// Fails with RuntimeError PathFileAccess, cause NameNotUsable, if the path is not usable.
void CheckName(const std::string& path);

// True if the path ends in an extension such as ".trk", whatever its letter case.
bool HasExtension(std::string_view path, std::string_view extension);

}  // namespace Platform
