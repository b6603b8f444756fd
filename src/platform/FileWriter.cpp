#include <algorithm>
#include <optional>
#include <utility>

#include "platform/CheckedFile.h"
#include "platform/Files.h"
#include "platform/InterruptedSave.h"
#include "platform/Paths.h"
#include "platform/Patience.h"
#include "platform/SideFile.h"

namespace Platform {

struct FileWriter::Open {
  Open(std::string finalPath, IfThere ifNameIsTaken)
      : path(std::move(finalPath)), ifThere(ifNameIsTaken) {
    RequireWritable(path, ifThere);
    const std::string folder = FolderOf(path);
    // What a save left that was cut off here goes before this one makes its own.
    RemoveAbandonedSideFiles(folder);
    RemoveAbandonedContents(path);
    OpenFile side;
    refusal = MakeSideFile(folder, side, writtenPath);
    if (refusal == SystemError::None) {
      written = CheckedFile(std::move(side), path);
      return;
    }
    // The folder takes no new file. Whether the file that is there can be rewritten instead is
    // found out now: the user may be about to write for minutes.
    OpenFile file;
    const SystemError error = OpenToRewrite(path, file);
    Require(IsMissing(error) ? refusal : error, path, FileStep::Writing);
    target = CheckedFile(std::move(file), path);
    MakeContents();
  }

  ~Open() {
    if (!isWrittenOurs) return;
    // Closed first, as an open file cannot be deleted.
    written = CheckedFile();
    RemoveWritten();
  }

  // The file in the temporary folder that takes the place of one beside the target.
  void MakeContents() {
    const RescueFiles files(path);
    if (!files.CanBeMade()) FailWith(refusal, path, FileStep::Writing);
    OpenFile file;
    const SystemError error = Patiently(
        [&] { return file.Open(files.contents, OpenFile::How::New); }, IsInUseForReplacing);
    // What the user can mend is the refusal of the folder, not that of the system's own.
    Require(error == SystemError::AccessDenied ? refusal : error, path, FileStep::Writing);
    written = CheckedFile(std::move(file), path);
    writtenPath = files.contents;
  }

  void RemoveWritten() const {
    Patiently([&] { return FileCalls::Delete(writtenPath); }, IsInUseForReplacing);
  }

  // Gives the file what it keeps of the one that it replaces, and its time.
  void Dress(OpenFile& file) {
    // Asked now and not at the start: what became of the file meanwhile counts.
    FileCalls::Info info;
    const SystemError error =
        Patiently([&] { return FileCalls::GetInfo(path, info); }, IsInUseForReplacing);
    if (!IsMissing(error)) {
      Require(error, path, FileStep::AskingAttributes);
      Require(Patiently([&] { return file.SetAttributes(info.attributes); }, IsInUseForReplacing),
              path, FileStep::SettingAttributes);
    }
    SetTime(file);
  }
  void SetTime(OpenFile& file) {
    if (!lastWrite) return;
    Require(Patiently([&] { return file.SetLastWrite(*lastWrite); }, IsInUseForReplacing), path,
            FileStep::SettingAttributes);
  }

  void Finish() {
    // Before it gets the name: a name that reached the disk before the bytes would be a lost file
    // after a power cut.
    written.Flush();
    if (target.IsOpen()) return Rewrite();
    Dress(written.file());
    // The file is renamed while it is open: so no other copy of the pack takes it for abandoned.
    const SystemError error =
        Patiently([&] { return written.file().Rename(path, ifThere); }, IsInUseForReplacing);
    if (error == SystemError::None) {
      isWrittenOurs = false;
      return;
    }
    if (ifThere == IfThere::Fail || !IsInUseForReplacing(error) || !TakeTarget()) {
      FailWith(error, path, FileStep::Replacing);
    }
    refusal = error;
    CheckedFile side = std::exchange(written, CheckedFile());
    const std::string sidePath = std::exchange(writtenPath, "");
    isWrittenOurs = false;
    try {
      MakeContents();
      isWrittenOurs = true;
      written.CopyFrom(side);
      written.Flush();
      Rewrite();
    } catch (...) {
      side = CheckedFile();
      Patiently([&] { return FileCalls::Delete(sidePath); }, IsInUseForReplacing);
      throw;
    }
    side = CheckedFile();
    Patiently([&] { return FileCalls::Delete(sidePath); }, IsInUseForReplacing);
  }

  // Opens the file itself, which someone holds so that it cannot be replaced.
  bool TakeTarget() {
    OpenFile file;
    if (TryToRewrite(path, file) != SystemError::None) return false;
    target = CheckedFile(std::move(file), path);
    return true;
  }

  void Rewrite() {
    try {
      RewriteInPlace(target, path, written);
      // Last, since each write sets the time anew.
      SetTime(target.file());
    } catch (const RuntimeError& failure) {
      // With the copy of the old contents, these tell later how far it had come.
      if (!failure.copy().empty()) isWrittenOurs = false;
      throw;
    }
  }

  std::string path;
  IfThere ifThere;
  CheckedFile written;
  std::string writtenPath;
  bool isWrittenOurs = true;                // and is to go unless it becomes the file
  CheckedFile target;                       // the file itself, where it is rewritten in place
  SystemError refusal = SystemError::None;  // why it is
  std::optional<uint64_t> lastWrite;
  uint64_t length = 0;
};

FileWriter::FileWriter(const std::string& path, IfThere ifThere) {
  CheckName(path);
  MakeGoodInterruptedSave(path);
  open_ = std::make_unique<Open>(path, ifThere);
}

FileWriter::~FileWriter() = default;

void FileWriter::Write(std::string_view bytes) {
  open_->written.Write(bytes);
  open_->length += bytes.size();
}

void FileWriter::WriteOver(uint64_t place, std::string_view bytes) {
  open_->written.Seek(place);
  open_->written.Write(bytes);
  open_->written.Seek(open_->length);
}

size_t FileWriter::ReadBack(uint64_t place, char* buffer, size_t size) {
  open_->written.Seek(std::min(place, open_->length));
  const size_t count = open_->written.Read(buffer, size);
  open_->written.Seek(open_->length);
  return count;
}

void FileWriter::SetLastWrite(uint64_t time) {
  open_->lastWrite = time;
}

void FileWriter::Finish() {
  // Taken over, so that a side file that could not be renamed goes when this fails.
  const std::unique_ptr<Open> finished = std::move(open_);
  finished->Finish();
}

}  // namespace Platform
