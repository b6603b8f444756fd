#include "archive/Extraction.h"

#include <algorithm>
#include <map>
#include <optional>
#include <vector>

#include "archive/Directory.h"
#include "archive/Plan.h"
#include "archive/Times.h"
#include "base/RuntimeError.h"
#include "platform/Files.h"
#include "platform/LetterCase.h"
#include "platform/Paths.h"

namespace Archive {

namespace {

using Platform::IfThere;
using Platform::LongStep;

[[noreturn]] void FailAt(const std::string& path) {
  throw RuntimeError(RuntimeError::PathFileAccess, path);
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
