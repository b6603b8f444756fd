// The files of a package: what lies beside a track or a vehicle, and how they become an archive.
#pragma once

#include <string>
#include <vector>

namespace Package {

// The wave file and the archive that belong to the file of a track or a vehicle: its path with the
// last three characters, whatever they are, replaced by "wav" or "zip".
std::string DescriptionPathOf(const std::string& path);
std::string ArchivePathOf(const std::string& path);

// Puts files into the archive of a track or a vehicle, behind what it holds already, and deletes
// them. A file that is listed twice is packed and deleted once.
//   path   the file of the track or vehicle, one of those files.
//   files  in the order in which they are packed.
// No file is deleted before the archive stands under its name and every file has been compared with
// what is in it. Whatever fails before leaves all files, and the archive as it was. What fails at
// deleting leaves the archive complete, and some of the files beside it: the track or vehicle is
// the first to go, so that as long as it is there all that belongs to it is there too.
// Fails as Archive::Pack and RemoveFile do; with RuntimeError InvalidCall, cause
// PackagedIntoItself, if a file has the name of the archive.
void PackAndDelete(const std::string& path, const std::vector<std::string>& files);

}  // namespace Package
