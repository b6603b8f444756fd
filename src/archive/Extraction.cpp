#include "archive/Extraction.h"

#include <algorithm>
#include <map>
#include <optional>
#include <vector>

#include "archive/Directory.h"
#include "archive/EntryReader.h"
#include "archive/Names.h"
#include "archive/Refusal.h"
#include "archive/Times.h"
#include "platform/Files.h"
#include "platform/LetterCase.h"
#include "platform/Paths.h"

namespace Archive {

namespace {

using Platform::IfThere;
using Platform::LongStep;

// The system keeps room for a short file name below each folder.
constexpr size_t LongestFolder = 247;

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

[[noreturn]] void FailAt(const std::string& path) {
  throw RuntimeError(RuntimeError::PathFileAccess, path);
}

void RequireLength(const std::string& path, size_t most) {
  if (path.size() <= most) return;
  throw RuntimeError(RuntimeError::PathFileAccess, RuntimeErrorTexts.NameNotUsable, path);
}

// A folder, and those that hold it, down to the target.
void PlanFolder(const std::string& path, Plan& plan) {
  if (path.size() <= plan.target.size()) return;
  RequireLength(path, LongestFolder);
  if (!plan.folders.emplace(Platform::LowerCase(path), path).second) return;
  PlanFolder(Platform::FolderOf(path), plan);
}

Plan PlanAll(const Directory& directory, const std::string& archive, const std::string& target,
             const LongStep& step) {
  Plan plan;
  plan.target = target;
  const auto refuseTwice = [&](const Entry& entry) {
    Refuse(ArchiveTexts.ArchiveNameTwice, archive, ShownName(entry));
  };
  for (const Entry& entry : directory.entries()) {
    step.AnswerOthers();
    const EntryPath found = PathOf(entry, archive);
    if (found.isFolder && entry.size > 0) {
      Refuse(ArchiveTexts.ArchiveDamaged, archive, ShownName(entry));
    }
    const std::string path = found.path.empty() ? target : target + "\\" + found.path;
    if (found.isFolder) {
      PlanFolder(path, plan);
      continue;
    }
    Platform::CheckName(path);
    PlanFolder(Platform::FolderOf(path), plan);
    if (!plan.files.emplace(Platform::LowerCase(path), PlannedFile{&entry, path}).second) {
      refuseTwice(entry);
    }
  }
  for (const auto& [key, file] : plan.files) {
    if (plan.folders.contains(key)) refuseTwice(*file.entry);
  }
  return plan;
}

// The folder itself, or the first that is there of those that hold it.
std::string NearestFolder(std::string path) {
  while (!Platform::FileExists(path) && !Platform::FolderOf(path).empty()) {
    path = Platform::FolderOf(path);
  }
  return path;
}

void RequireRoom(const Plan& plan, uint64_t bytes) {
  if (bytes == 0 || bytes <= Platform::FreeSpaceIn(NearestFolder(plan.target))) return;
  throw RuntimeError(RuntimeError::DiskFull, plan.target);
}

// What is on the disk already, and whether the plan fits there.
void JudgeDisk(Plan& plan, const std::string& archive, const LongStep& step) {
  for (const auto& [key, path] : plan.folders) {
    step.AnswerOthers();
    if (Platform::StampOf(path)) FailAt(path);
  }
  if (Platform::StampOf(plan.target)) FailAt(plan.target);
  if (plan.files.contains(Platform::LowerCase(archive))) FailAt(archive);
  uint64_t written = 0;
  uint64_t freed = 0;
  uint64_t mostNeeded = 0;
  for (auto& [key, file] : plan.files) {
    step.AnswerOthers();
    // A file that is replaced goes only when the new one is whole.
    // Entries do not lie over each other and none is said to grow beyond measure, so that the sum
    // of their sizes stays far below what 64 bits hold.
    written += file.entry->size;
    mostNeeded = std::max(mostNeeded, written - std::min(written, freed));
    file.isThere = Platform::FileExists(file.path);
    if (!file.isThere) continue;
    const auto stamp = Platform::StampOf(file.path);
    if (!stamp || Platform::AttributesOf(file.path).isReadOnly) FailAt(file.path);
    freed += stamp->size;
  }
  RequireRoom(plan, mostNeeded);
}

// Unpacks an entry, handing on its blocks.
template <class Use>
void Unpack(ByteSource& source, const Entry& entry, const LongStep& step, const Use& use) {
  EntryReader reader(source, entry);
  for (std::string_view block; reader.Next(block);) {
    use(block);
    step.AnswerOthers();
  }
}

void JudgeContents(ByteSource& source, const Directory& directory, const LongStep& step) {
  for (const Entry& entry : directory.entries()) {
    Unpack(source, entry, step, [](std::string_view) {});
  }
}

// What was made, to be taken away again if the rest cannot be.
class MadeSoFar {
 public:
  void AddFile(const std::string& path) { files_.push_back(path); }
  // Makes a folder, and those on the way to it.
  void MakeFolder(const std::string& path) {
    const std::string holder = Platform::FolderOf(path);
    if (!holder.empty() && !Platform::FileExists(holder)) MakeFolder(holder);
    if (Platform::MakeFolder(path)) folders_.push_back(path);
  }
  // The user is told of the failure that led here, not of what cannot be removed.
  void Remove() const {
    for (const std::string& path : files_) {
      IgnoringFailures([&] { Platform::RemoveFile(path); });
    }
    for (size_t i = folders_.size(); i-- > 0;) {
      IgnoringFailures([&] { Platform::RemoveFolder(folders_[i]); });
    }
  }

 private:
  template <class Action>
  static void IgnoringFailures(const Action& action) {
    try {
      action();
    } catch (const RuntimeError&) {
    }
  }

  std::vector<std::string> files_;
  std::vector<std::string> folders_;
};

void WriteFile(ByteSource& source, const PlannedFile& file, const LongStep& step) {
  // Where nothing was, nothing is replaced: names that are one to the disk alone are found out.
  Platform::FileWriter writer(file.path, file.isThere ? IfThere::Replace : IfThere::Fail);
  Unpack(source, *file.entry, step, [&](std::string_view block) { writer.Write(block); });
  const Entry& entry = *file.entry;
  const auto time = entry.exactTime ? std::optional(entry.exactTime) : FromDosTime(entry.dosTime);
  if (time) writer.SetLastWrite(*time);
  writer.Finish();
}

void WriteAll(ByteSource& source, const Plan& plan, const LongStep& step) {
  MadeSoFar made;
  try {
    if (!Platform::FileExists(plan.target)) made.MakeFolder(plan.target);
    for (const auto& [key, path] : plan.folders) {
      step.AnswerOthers();
      made.MakeFolder(path);
    }
    for (const auto& [key, file] : plan.files) {
      WriteFile(source, file, step);
      if (!file.isThere) made.AddFile(file.path);
    }
  } catch (...) {
    made.Remove();
    throw;
  }
}

}  // namespace

void Extract(const std::string& archive, const std::string& folder, const std::string&) {
  const LongStep step;
  std::string target = folder;
  if (Platform::NameOf(target).empty()) target = Platform::FolderOf(target);
  RequireLength(target, LongestFolder);
  FileSource source(archive);
  const Directory directory(source, step);
  Plan plan = PlanAll(directory, archive, target, step);
  JudgeDisk(plan, archive, step);
  JudgeContents(source, directory, step);
  WriteAll(source, plan, step);
}

}  // namespace Archive
