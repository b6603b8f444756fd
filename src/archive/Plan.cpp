#include "archive/Plan.h"

#include "archive/Names.h"
#include "archive/Refusal.h"
#include "base/RuntimeError.h"
#include "platform/LetterCase.h"
#include "platform/Paths.h"

namespace Archive {

using Platform::LongStep;

namespace {

// A folder, and those that hold it, down to the target.
void PlanFolder(const std::string& path, Plan& plan) {
  if (path.size() <= plan.target.size()) return;
  RequireLength(path, LongestFolder);
  if (!plan.folders.emplace(Platform::LowerCase(path), path).second) return;
  PlanFolder(Platform::FolderOf(path), plan);
}

}  // namespace

void RequireLength(const std::string& path, size_t most) {
  if (path.size() <= most) return;
  throw RuntimeError(RuntimeError::PathFileAccess, RuntimeErrorTexts.NameNotUsable, path);
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

void JudgeContents(ByteSource& source, const Directory& directory, const LongStep& step) {
  for (const Entry& entry : directory.entries()) {
    Unpack(source, entry, step, [](std::string_view) {});
  }
}

}  // namespace Archive
