#include "platform/InterruptedSave.h"

#include <cstdio>
#include <exception>
#include <utility>

#include "base/PerRun.h"
#include "platform/LetterCase.h"
#include "platform/Patience.h"

namespace Platform {

namespace {

struct SaveNotes {
  std::vector<SaveNote> notes;
};

// A number of 64 bits for a text: that of two paths is hardly ever the same.
uint64_t HashOf(const std::string& text) {
  uint64_t hash = 0xCBF29CE484222325U;  // FNV-1a
  for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
  return hash;
}

void Remove(const std::string& path) {
  Patiently([&] { return FileCalls::Delete(path); }, IsInUseForReplacing);
}

// True if there is a file of that name. A refusal counts only when it comes twice; it is not waited
// for, as this is asked before every use of a file, and a user may have no right to the folder.
bool IsThere(const std::string& path) {
  FileCalls::Info info;
  const SystemError error = FileCalls::GetInfo(path, info);
  if (error == SystemError::None || IsMissing(error)) return error == SystemError::None;
  return FileCalls::GetInfo(path, info) == SystemError::None;
}

// Makes a file that only we may write, in place of what an ended program left under its name.
SystemError MakeAnew(const std::string& path, OpenFile& file) {
  return Patiently(
      [&] {
        SystemError error = file.Open(path, OpenFile::How::New);
        if (error == SystemError::FileExists || error == SystemError::AlreadyExists) {
          error = FileCalls::Delete(path);
          if (error == SystemError::None || IsMissing(error)) {
            error = file.Open(path, OpenFile::How::New);
          }
        }
        return error;
      },
      IsInUseForReplacing);
}

// Copies the old contents of a file under the name that says that they are whole.
void PutAside(CheckedFile& target, const RescueFiles& files, CheckedFile& old) {
  old.CopyFrom(target);
  old.Flush();
  Require(
      Patiently([&] { return old.file().Rename(files.old, IfThere::Fail); }, IsInUseForReplacing),
      files.old, FileStep::Renaming);
}

void PutBack(CheckedFile& old, CheckedFile& target) {
  const uint64_t length = old.Size();
  if (target.Size() != length) target.SetLength(length);  // first: that hardly ever fails
  target.CopyFrom(old);
  target.Flush();
}

enum class StateFound { AsBefore, Finished, HalfDone, Foreign };

// What a file holds beside what it held before and what it was to hold. Where it was to become
// longer, its length was reserved first, and what was not written yet is zero.
StateFound Compare(CheckedFile& target, CheckedFile& old, CheckedFile& contents) {
  const uint64_t length = target.Size();
  const uint64_t oldLength = old.Size();
  const uint64_t newLength = contents.IsOpen() ? contents.Size() : oldLength;
  if (length != oldLength && length != newLength) return StateFound::Foreign;
  bool isOld = length == oldLength;
  bool isNew = contents.IsOpen() && length == newLength;
  std::string block(CheckedFile::BlockSize, '\0');
  std::string oldBlock;
  std::string newBlock;
  const auto readLike = [](CheckedFile& file, std::string& bytes, size_t size) {
    bytes.assign(size, '\0');
    return file.IsOpen() ? file.ReadFully(bytes.data(), size) : 0;
  };
  target.Seek(0);
  old.Seek(0);
  if (contents.IsOpen()) contents.Seek(0);
  while (const size_t count = target.ReadFully(block.data(), block.size())) {
    readLike(old, oldBlock, count);
    const size_t newCount = readLike(contents, newBlock, count);
    for (size_t i = 0; i < count; ++i) {
      const bool isOldByte = block[i] == oldBlock[i];
      const bool isNewByte = i < newCount && block[i] == newBlock[i];
      isOld = isOld && isOldByte;
      isNew = isNew && isNewByte;
      if (!isOldByte && !isNewByte) return StateFound::Foreign;
    }
  }
  if (isOld) return StateFound::AsBefore;
  return isNew ? StateFound::Finished : StateFound::HalfDone;
}

// Gives the copy a name under which no save looks for it. Returns the name that it has then.
std::string KeepForTheUser(const RescueFiles& files) {
  for (int number = 1;; ++number) {
    std::string kept = files.stem + "-" + std::to_string(number) + ".old";
    const SystemError error = FileCalls::Rename(files.old, kept);
    if (error == SystemError::None) return kept;
    if (error != SystemError::FileExists && error != SystemError::AlreadyExists) return files.old;
  }
}

}  // namespace

RescueFiles::RescueFiles(const std::string& path) {
  const std::string folder = FileCalls::TemporaryFolder();
  if (folder.empty()) return;
  char name[32];
  std::snprintf(name, sizeof name, "\\sk2pack-%016llx",
                static_cast<unsigned long long>(HashOf(LowerCase(path))));
  stem = folder + name;
  contents = stem + ".new";
  part = stem + ".part";
  old = stem + ".old";
}

SystemError TryToRewrite(const std::string& path, OpenFile& file) {
  const SystemError error = file.Open(path, OpenFile::How::ToRewrite);
  return IsInUse(error) ? file.Open(path, OpenFile::How::ToRewriteShared) : error;
}

SystemError OpenToRewrite(const std::string& path, OpenFile& file) {
  return Patiently([&] { return TryToRewrite(path, file); });
}

void RewriteInPlace(CheckedFile& target, const std::string& path, CheckedFile& contents) {
  const RescueFiles files(path);
  OpenFile made;
  Require(MakeAnew(files.part, made), path, FileStep::Rewriting);
  CheckedFile old(std::move(made), path);
  try {
    PutAside(target, files, old);
  } catch (const RuntimeError&) {
    old = CheckedFile();
    Remove(files.part);
    throw;
  }
  try {
    const uint64_t oldLength = target.Size();
    const uint64_t length = contents.Size();
    // The room is taken first: a disk that is full is met before a byte is changed.
    if (length > oldLength) target.SetLength(length);
    target.CopyFrom(contents);
    if (length < oldLength) target.SetLength(length);
    target.Flush();
  } catch (const std::exception& failure) {
    try {
      PutBack(old, target);
    } catch (const std::exception&) {
      const auto* told = dynamic_cast<const RuntimeError*>(&failure);
      throw RuntimeError::WithCopy(told ? *told : RuntimeError(RuntimeError::OutOfMemory, path),
                                   files.old);
    }
    old = CheckedFile();
    Remove(files.old);
    throw;
  }
  old = CheckedFile();
  Remove(files.old);
}

void MakeGoodInterruptedSave(const std::string& path) {
  const RescueFiles files(path);
  if (!files.CanBeMade() || !IsThere(files.old)) return;
  const auto require = [&](SystemError error) {
    if (error == SystemError::None) return;
    throw RuntimeError::WithCopy(FailureOf(error, path, FileStep::Restoring), files.old);
  };
  // A rewriting that is under way holds its copy, and nobody makes good what is not over.
  OpenFile copy;
  const SystemError error = Patiently(
      [&] { return copy.Open(files.old, OpenFile::How::ToRewrite); }, IsInUseForReplacing);
  if (IsMissing(error)) return;
  Require(error, path, FileStep::Restoring);
  CheckedFile old(std::move(copy), path);

  OpenFile file;
  const SystemError missing = OpenToRewrite(path, file);
  // A file that has gone since is told of as one that another program has changed.
  if (!IsMissing(missing)) require(missing);
  CheckedFile target(std::move(file), path);
  OpenFile meant;
  Patiently([&] { return meant.Open(files.contents, OpenFile::How::ToRead); }, IsInUseForReplacing);
  CheckedFile contents(std::move(meant), path);

  try {
    const StateFound state = target.IsOpen() ? Compare(target, old, contents) : StateFound::Foreign;
    if (state == StateFound::HalfDone) PutBack(old, target);
    old = CheckedFile();
    contents = CheckedFile();
    auto& notes = PerRun<SaveNotes>().notes;
    if (state == StateFound::HalfDone) notes.push_back({RuntimeErrorTexts.PutBack, path, ""});
    if (state == StateFound::Foreign) {
      notes.push_back({RuntimeErrorTexts.NotPutBack, path, KeepForTheUser(files)});
    } else {
      Remove(files.old);
    }
  } catch (const RuntimeError& failure) {
    throw RuntimeError::WithCopy(failure, files.old);
  }
  // Last: until the old copy has gone these bytes tell how far the save had come.
  Remove(files.contents);
}

void RemoveAbandonedContents(const std::string& path) {
  const RescueFiles files(path);
  if (!files.CanBeMade()) return;
  FileCalls::Delete(files.contents);
  FileCalls::Delete(files.part);
}

void ForgetInterruptedSave(const std::string& path) {
  const RescueFiles files(path);
  if (!files.CanBeMade()) return;
  FileCalls::Delete(files.old);
  RemoveAbandonedContents(path);
}

std::vector<SaveNote> TakeSaveNotes() {
  return std::exchange(PerRun<SaveNotes>().notes, {});
}

}  // namespace Platform
