// The state of a site: its files on the disk, compared with those that it is to have and exchanged
// for them as a whole (platform/ServedFolder.h).
#pragma once

#include <optional>
#include <string>

#include "platform/ServedFolder.h"
#include "tools/SiteFiles.h"

class SiteState {
 public:
  // Takes the site for itself while it lives, makes good what an ended run left there, and removes
  // what nobody needs. Changes nothing where nothing is left, and makes no site. Fails as
  // Platform::SiteLock, UnservedFolders and FolderTree::Remove do.
  explicit SiteState(const std::string& site);

  // True if what is served is exactly these files, byte for byte. Fails as Platform::ListFolder and
  // FileReader do.
  bool IsServed(const SiteFiles::Files& files) const;

  // The bytes of a served file; empty if it is not there. Fails as Platform::ReadWholeFile does.
  std::string ServedText(const std::string& path) const;

  // Makes the files beside what is served and then serves them in its place. After a failure what
  // was served is served still; what was served before may stay beside it until the next run. Fails
  // as Platform::FileWriter and ServeNextFolder do; with RuntimeError InvalidCall if a file is not
  // what it was when it was judged.
  void Serve(const SiteFiles::Files& files);

 private:
  void Take();
  void CleanUp() const;

  std::string site_;
  std::string served_;
  std::optional<Platform::SiteLock> lock_;
};
