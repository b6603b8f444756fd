// The state of a site: its files on the disk, compared with those that it is to have and exchanged
// for them as a whole (platform/ServedFolder.h).
#pragma once

#include <string>

#include "tools/SiteFiles.h"

namespace SiteState {

// True if what is served is exactly these files, byte for byte. Changes nothing. Fails as
// Platform::ListFolder and FileReader do.
bool IsServed(const std::string& site, const SiteFiles::Files& files);

// The bytes of a served file; empty if it is not there. Fails as Platform::ReadWholeFile does.
std::string ServedText(const std::string& site, const std::string& path);

// Makes good what an ended run left and removes what nobody needs. Changes nothing where nothing is
// left. Fails as Platform::UnservedFolders and FolderTree::Remove do.
void CleanUp(const std::string& site);

// Makes the files beside what is served and then serves them in its place. After a failure what was
// served is served still; what was served before may stay beside it until the next run. Fails as
// Platform::FileWriter and ServeNextFolder do; with RuntimeError InvalidCall if a file is not what
// it was when it was judged.
void Serve(const std::string& site, const SiteFiles::Files& files);

}  // namespace SiteState
