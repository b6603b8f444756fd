// The files that a save makes beside the user's own, and how they are told from all others.
//
// A name such as "~k3f9q2.sk2" proves itself: part of its letters is worked out from the rest, so
// that hardly one in a million names of that shape fits. A file is ours only if its name does.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/FileCalls.h"

namespace Platform {

// One of the thousand names, without a folder. It is so short that it can be had in every folder in
// which a file can be made at all.
std::string SideFileName(uint32_t number);
bool IsSideFileName(std::string_view name);

// Makes a side file in a folder under a name that is free.
//   path  becomes the file's path.
// Returns why the folder took none.
SystemError MakeSideFile(const std::string& folder, OpenFile& file, std::string& path);

// Removes the side files of saves that were ended; not those of saves that are under way, which are
// held. What cannot be removed now is removed by a later save.
void RemoveAbandonedSideFiles(const std::string& folder);

}  // namespace Platform
