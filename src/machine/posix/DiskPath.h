// Where a path of platform/Files.h leads on a disk that minds letter case and has "/" between its
// folders.
//
// Names are texts of the code page 1252 to the program and UTF-8 on the disk. A name on the disk
// that is not UTF-8, as programs leave it that unpack an archive of Windows byte for byte, stands
// for those bytes of the code page. One with a letter that the code page lacks has "?" for it and
// cannot be used, as on a Windows with that page.
#pragma once

#include <string>
#include <string_view>

#include "platform/SystemError.h"

namespace Posix {

// A name as the disk has it, in the code page.
std::string NameFromDisk(std::string_view name);

// Finds a path's place on the disk.
//   path   of the code page, with "\" or "/" between names. ".." and "." are resolved by their
//   words
//          alone, and dots and blanks at the end are dropped, as Windows does. It need not be
//          absolute: it then starts in the working folder.
//   place  the place, in the spelling that the disk has for what is there; the name that was asked
//          for where there is nothing of that name.
// For each name that very name is looked for first, and otherwise the first one, by its bytes, that
// differs in letter case alone. Returns PathNotFound if a folder on the way is missing.
Platform::SystemError Find(std::string_view path, std::string& place);

// The folder that a place is in.
std::string FolderOfPlace(const std::string& place);

}  // namespace Posix
