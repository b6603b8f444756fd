// What an archive would put where: all of it that can be judged without a disk.
#pragma once

#include <map>
#include <string>

#include "archive/ByteSource.h"
#include "archive/Directory.h"
#include "archive/EntryReader.h"
#include "platform/LongStep.h"

namespace Archive {

// The system keeps room for a short file name below each folder.
inline constexpr size_t LongestFolder = 247;

struct PlannedFile {
  const Entry* entry;
  std::string path;
  bool isThere = false;  // and is replaced
};

// What is to stand on the disk, by the names as the disk compares them.
struct Plan {
  std::string target;
  std::map<std::string, std::string> folders;  // each after the one that holds it
  std::map<std::string, PlannedFile> files;
};

// Fails with PathFileAccess, cause NameNotUsable, for a path that is longer than that.
void RequireLength(const std::string& path, size_t most);

// Judges all names, which become paths below the target, a folder without a backslash at its end.
// Refuses what PathOf refuses, and two files or folders of one name. Fails with PathFileAccess,
// cause NameNotUsable, where a path gets too long.
Plan PlanAll(const Directory& directory, const std::string& archive, const std::string& target,
             const Platform::LongStep& step);

// Unpacks an entry, handing on its blocks. Fails as EntryReader does.
template <class Use>
void Unpack(ByteSource& source, const Entry& entry, const Platform::LongStep& step,
            const Use& use) {
  EntryReader reader(source, entry);
  for (std::string_view block; reader.Next(block);) {
    use(block);
    step.AnswerOthers();
  }
}

// Unpacks all entries to nowhere. Fails as EntryReader does.
void JudgeContents(ByteSource& source, const Directory& directory, const Platform::LongStep& step);

}  // namespace Archive
