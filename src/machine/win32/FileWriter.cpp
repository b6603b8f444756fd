#include <cstdio>
#include <optional>
#include <vector>

#include "base/RuntimeError.h"
#include "machine/win32/FileHandles.h"
#include "platform/Files.h"
#include "platform/Paths.h"

namespace Platform {

namespace {

// A file of our own with a name that no one else has. Unless it is told to stay, it vanishes with
// its handle, even if the program is ended meanwhile.
class TemporaryFile {
 public:
  // Makes one in a folder. If that fails, or there is no folder, it is not open.
  explicit TemporaryFile(const std::string& folder) {
    if (folder.empty()) return;
    // The name is so short that it can be had in every folder in which a file can be made at all.
    static DWORD number = GetTickCount() ^ GetCurrentProcessId() << 8;
    do {
      char name[32];
      std::snprintf(name, sizeof name, "\\~%06lx.tmp", ++number & 0xFFFFFF);
      file_ = OpenFile(folder + name, GENERIC_READ | GENERIC_WRITE | DELETE, 0, CREATE_NEW);
    } while (file_.error() == ERROR_FILE_EXISTS || file_.error() == ERROR_ALREADY_EXISTS);
    if (file_.IsOpen()) doesVanish_ = SetVanishing(true);
  }
  TemporaryFile(TemporaryFile&&) noexcept = default;
  TemporaryFile& operator=(TemporaryFile&&) noexcept = default;
  ~TemporaryFile() {
    if (!file_.IsOpen() || mustStay_) return;
    const std::string path = file_.path();
    file_ = OpenFile();
    // Not every disk lets a file vanish by itself.
    if (!doesVanish_) DeleteFileA(path.c_str());
  }

  OpenFile& file() { return file_; }

  // Flushes the file, which from now on outlives the program until it may go again.
  void Stay() {
    file_.Flush();
    if (doesVanish_ && !SetVanishing(false)) {
      FailWith(GetLastError(), file_.path(), Access::Writing);
    }
    doesVanish_ = false;
    mustStay_ = true;
  }
  void MayGo() {
    doesVanish_ = SetVanishing(true);
    mustStay_ = false;
  }

  // Flushes and closes the file, which stays under its name from now on. If that fails, it is gone.
  void Keep() {
    Stay();
    try {
      file_.Close();
    } catch (const RuntimeError&) {
      DeleteFileA(file_.path().c_str());
      throw;
    }
  }

 private:
  bool SetVanishing(bool doesVanish) {
    FILE_DISPOSITION_INFO disposition{};
    disposition.DeleteFile = doesVanish;
    return SetFileInformationByHandle(file_.get(), FileDispositionInfo, &disposition,
                                      sizeof disposition) != 0;
  }

  OpenFile file_;
  bool doesVanish_ = false;
  bool mustStay_ = false;
};

std::string SystemTemporaryFolder() {
  char path[MAX_PATH + 1];
  const DWORD length = GetTempPathA(sizeof path, path);
  if (length == 0 || length >= sizeof path) return {};
  return FolderOf(std::string(path, length));
}

void Copy(OpenFile& from, OpenFile& to, std::vector<char>& block) {
  from.Seek(0);
  to.Seek(0);
  while (const size_t count = from.Read(block.data(), block.size())) {
    to.Write({block.data(), count});
  }
}

// Puts the old contents of a file back. False if that fails too.
bool PutBack(TemporaryFile& old, OpenFile& target, uint64_t length, std::vector<char>& block) {
  try {
    if (target.Size() != length) target.SetLength(length);  // first: that hardly ever fails
    Copy(old.file(), target, block);
    target.Flush();
  } catch (const RuntimeError&) {
    return false;
  }
  return true;
}

// Gives an open file the contents of another. If that fails half way, the old contents, which were
// put aside before, are put back.
//   refusal  why the folder took no new file: what is told if nothing can be put aside.
void RewriteInPlace(OpenFile& target, OpenFile& contents, DWORD refusal) {
  std::vector<char> block(size_t{1} << 20);
  const uint64_t oldLength = target.Size();
  const uint64_t length = contents.Size();
  TemporaryFile old(SystemTemporaryFolder());
  if (!old.file().IsOpen()) FailWith(refusal, target.path(), Access::Writing);
  Copy(target, old.file(), block);
  old.Stay();
  try {
    if (length > oldLength) target.SetLength(length);
    Copy(contents, target, block);
    target.SetLength(length);
    target.Flush();
  } catch (...) {
    // What could not be put back is still in the file that was put aside, and that one stays.
    if (PutBack(old, target, oldLength, block)) old.MayGo();
    throw;
  }
  old.MayGo();
}

}  // namespace

struct FileWriter::Open {
  std::string path;
  TemporaryFile temporary;
  // The file itself, where its folder takes no new files.
  std::optional<OpenFile> inPlace;
  DWORD refusal = ERROR_SUCCESS;  // why it takes none

  explicit Open(const std::string& target) : path(target), temporary(FolderOf(target)) {
    if (temporary.file().IsOpen()) return;
    refusal = temporary.file().error();
    const DWORD error = TryWhileInUse([&] {
      inPlace = OpenFile(path, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, OPEN_EXISTING);
      return inPlace->error();
    });
    if (error == ERROR_FILE_NOT_FOUND) FailWith(refusal, path, Access::Writing);
    if (error != ERROR_SUCCESS) FailWith(error, path, Access::Writing);
    temporary = TemporaryFile(SystemTemporaryFolder());
    if (!temporary.file().IsOpen()) FailWith(refusal, path, Access::Writing);
  }

  void PutInPlace() {
    const DWORD attributes = GetFileAttributesA(path.c_str());
    temporary.Keep();
    const std::string& name = temporary.file().path();
    DWORD error = ERROR_SUCCESS;
    if (attributes != INVALID_FILE_ATTRIBUTES &&
        !SetFileAttributesA(name.c_str(), attributes & Settable)) {
      error = GetLastError();
    }
    const auto replace = [&]() -> DWORD {
      const DWORD how = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
      return MoveFileExA(name.c_str(), path.c_str(), how) ? ERROR_SUCCESS : GetLastError();
    };
    if (error == ERROR_SUCCESS) error = TryWhileInUse(replace, IsInUseForReplacing);
    if (error == ERROR_SUCCESS) return;
    SetFileAttributesA(name.c_str(), FILE_ATTRIBUTE_NORMAL);
    DeleteFileA(name.c_str());
    FailWith(error, path, Access::Writing);
  }

  // The attributes that a program may give to a file.
  static constexpr DWORD Settable = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN |
                                    FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE |
                                    FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;
};

FileWriter::FileWriter(const std::string& path) {
  CheckWritable(path);
  open_ = std::make_unique<Open>(path);
}

FileWriter::~FileWriter() = default;

void FileWriter::Write(std::string_view bytes) {
  try {
    open_->temporary.file().Write(bytes);
  } catch (const RuntimeError& error) {
    // The user knows the file by the name that it is to have.
    throw RuntimeError(error.number(), error.cause(), open_->path);
  }
}

void FileWriter::Finish() {
  try {
    if (open_->inPlace) {
      RewriteInPlace(*open_->inPlace, open_->temporary.file(), open_->refusal);
    } else {
      open_->PutInPlace();
    }
  } catch (const RuntimeError& error) {
    throw RuntimeError(error.number(), error.cause(), open_->path);
  }
  open_.reset();
}

}  // namespace Platform
