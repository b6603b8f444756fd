// Looking into an archive that may come from anywhere, without a disk to unpack it to.
#pragma once

#include <string>
#include <vector>

#include "archive/Plan.h"
#include "base/LineReader.h"

namespace Archive {

class Inspection {
 public:
  // Judges an archive whole, as Extract does before it writes: names, sizes, places and contents.
  // Refuses it for any of the reasons in ArchiveTexts. Fails also as FileReader does, and with
  // PathFileAccess, cause NameNotUsable, where a path gets too long for any folder.
  explicit Inspection(const std::string& archive);
  Inspection(const Inspection&) = delete;
  Inspection& operator=(const Inspection&) = delete;

  // The files that it would unpack, as paths such as "sounds\horn.wav", sorted as the disk compares
  // them.
  const std::vector<std::string>& files() const { return files_; }

  // Whether such a path would lead to a file or a folder of what is unpacked: letter case does not
  // count, ".." and "." are resolved by their words, and dots and blanks at its end are dropped, as
  // the disk does. A path that leads outside of the archive leads to nothing.
  bool Holds(const std::string& path) const;

  // The contents of one of the files, to be read once from its start to its end while this lives.
  // Reading fails as EntryReader does.
  LineReader::Source Open(const std::string& file);

 private:
  Platform::LongStep step_;
  FileSource source_;
  Directory directory_;
  Plan plan_;
  std::vector<std::string> files_;
};

}  // namespace Archive
