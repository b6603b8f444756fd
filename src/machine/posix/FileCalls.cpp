// Files as this system has them. Nobody holds a file here: one that is read or written can be
// deleted and replaced, and whoever has it open keeps what was there. So a save never has to
// rewrite a file in place, and there is no temporary folder for the contents that it would put
// aside.
//
// A file that is being made is locked, so that another of our programs does not take it for one
// that an ended program has left.
#include "platform/FileCalls.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <sys/time.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <utility>

#include "machine/posix/DiskPath.h"
#include "machine/posix/ErrorCode.h"
#include "platform/Characters.h"

namespace Platform {

using Posix::LastError;
using Posix::ResultOf;

namespace {

constexpr mode_t AnyMayWrite = S_IWUSR | S_IWGRP | S_IWOTH;
constexpr mode_t NewFile = S_IRUSR | S_IRGRP | S_IROTH | AnyMayWrite;
constexpr mode_t NewFolder = S_IRWXU | S_IRWXG | S_IRWXO;

// From the seconds since 1970 to steps of 100 nanoseconds since 1601.
constexpr int64_t StepsASecond = 10'000'000;
constexpr int64_t NanosecondsAStep = 100;
constexpr int64_t SecondsTo1970 = 11'644'473'600;

uint64_t FromNative(const timespec& time) {
  return static_cast<uint64_t>((time.tv_sec + SecondsTo1970) * StepsASecond +
                               time.tv_nsec / NanosecondsAStep);
}

timespec ToNative(uint64_t time) {
  const auto steps = static_cast<int64_t>(time);
  return {steps / StepsASecond - SecondsTo1970, steps % StepsASecond * NanosecondsAStep};
}

class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  ~Descriptor() {
    if (number_ >= 0) close(number_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  int number() const { return number_; }
  SystemError Close() {
    const int number = std::exchange(number_, -1);
    return ResultOf(close(number));
  }

 private:
  int number_;
};

// So that a file's new name survives a power cut. A folder that cannot be flushed is no failure:
// the name is there.
void FlushFolderOf(const std::string& place) {
  const Descriptor folder(
      open(Posix::FolderOfPlace(place).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (folder.number() >= 0) fsync(folder.number());
}

bool IsReadOnly(const struct stat& info) {
  return (info.st_mode & AnyMayWrite) == 0;
}

// What stands at a place; a link leads on.
SystemError Ask(const std::string& place, struct stat& info) {
  return ResultOf(stat(place.c_str(), &info));
}

SystemError FindAndAsk(const std::string& path, std::string& place, struct stat& info) {
  const SystemError error = Posix::Find(path, place);
  return error == SystemError::None ? Ask(place, info) : error;
}

// The rights of a file with that attribute. The other attributes mean nothing here.
mode_t ModeWith(mode_t mode, FileAttributes attributes) {
  if (attributes.isReadOnly) return mode & ~AnyMayWrite;
  return (mode & AnyMayWrite) ? mode : mode | S_IWUSR;
}

int FlagsOf(OpenFile::How how) {
  using How = OpenFile::How;
  // A pipe that took the file's name since it was asked for must not be waited for.
  constexpr int Always = O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
  switch (how) {
    case How::ToRead:
    case How::ToGlance: return Always | O_RDONLY;
    case How::ToAppend:
    case How::ToRewrite:
    case How::ToRewriteShared: return Always | O_RDWR;
    case How::New: return Always | O_RDWR | O_CREAT | O_EXCL;
  }
  return Always;
}

SystemError RenamePlace(const std::string& from, const std::string& to, IfThere ifThere) {
  if (ifThere == IfThere::Replace) return ResultOf(rename(from.c_str(), to.c_str()));
  if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) {
    return SystemError::None;
  }
  if (errno != EINVAL && errno != ENOSYS) return LastError();
  // A disk that cannot do so in one step.
  struct stat info;
  if (lstat(to.c_str(), &info) == 0) return SystemError::AlreadyExists;
  return ResultOf(rename(from.c_str(), to.c_str()));
}

}  // namespace

struct OpenFile::State {
  Descriptor file;
  std::string place;
  bool isNew;
  bool appends;
};

OpenFile::OpenFile() = default;
OpenFile::~OpenFile() = default;
OpenFile::OpenFile(OpenFile&&) noexcept = default;
OpenFile& OpenFile::operator=(OpenFile&&) noexcept = default;

SystemError OpenFile::Open(const std::string& path, How how) {
  state_ = nullptr;
  std::string place;
  struct stat info;
  const SystemError missing = FindAndAsk(path, place, info);
  const bool isThere = missing == SystemError::None;
  const bool makes = how == How::New || (how == How::ToAppend && !isThere);
  if (isThere && how == How::New) return SystemError::FileExists;
  if (!isThere && !(makes && missing == SystemError::FileNotFound)) return missing;
  if (isThere && S_ISDIR(info.st_mode)) return SystemError::AccessDenied;
  if (isThere && !S_ISREG(info.st_mode)) return SystemError::InvalidName;

  const int flags = FlagsOf(makes ? How::New : how);
  auto state = std::unique_ptr<State>(new State{Descriptor(open(place.c_str(), flags, NewFile)),
                                                place, makes, how == How::ToAppend});
  const int file = state->file.number();
  if (file < 0) return LastError();
  if (fstat(file, &info) != 0) return LastError();
  if (!S_ISREG(info.st_mode)) return SystemError::InvalidName;
  if (how == How::New) {
    // Another program that removes what was left may have been quicker: then the name is taken.
    if (flock(file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
      return SystemError::AlreadyExists;
    }
    if (fstat(file, &info) != 0 || info.st_nlink == 0) return SystemError::AlreadyExists;
  }
  state_ = std::move(state);
  return SystemError::None;
}

bool OpenFile::IsNew() const {
  return state_ && state_->isNew;
}

SystemError OpenFile::Read(char* buffer, size_t size, size_t& count) {
  ssize_t read = 0;
  do {
    read = ::read(state_->file.number(), buffer, size);
  } while (read < 0 && errno == EINTR);
  count = static_cast<size_t>(std::max<ssize_t>(read, 0));
  return read < 0 ? LastError() : SystemError::None;
}

SystemError OpenFile::Write(std::string_view bytes) {
  if (state_->appends && lseek(state_->file.number(), 0, SEEK_END) < 0) return LastError();
  while (!bytes.empty()) {
    const ssize_t count = write(state_->file.number(), bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return LastError();
    // Neither progress nor failure: it would go round for ever.
    if (count == 0) return SystemError::DiskFull;
    bytes.remove_prefix(static_cast<size_t>(count));
  }
  return SystemError::None;
}

SystemError OpenFile::Size(uint64_t& size) {
  struct stat info;
  const SystemError error = ResultOf(fstat(state_->file.number(), &info));
  if (error == SystemError::None) size = static_cast<uint64_t>(info.st_size);
  return error;
}

SystemError OpenFile::Seek(uint64_t place) {
  const off_t result = lseek(state_->file.number(), static_cast<off_t>(place), SEEK_SET);
  return result < 0 ? LastError() : SystemError::None;
}

SystemError OpenFile::SetLength(uint64_t length) {
  const SystemError error = ResultOf(ftruncate(state_->file.number(), static_cast<off_t>(length)));
  return error == SystemError::None ? Seek(length) : error;
}

SystemError OpenFile::Flush() {
  return ResultOf(fsync(state_->file.number()));
}

SystemError OpenFile::SetAttributes(FileAttributes attributes) {
  struct stat info;
  if (fstat(state_->file.number(), &info) != 0) return LastError();
  return ResultOf(fchmod(state_->file.number(), ModeWith(info.st_mode, attributes) & 07777));
}

SystemError OpenFile::SetLastWrite(uint64_t time) {
  const timespec times[] = {{0, UTIME_OMIT}, ToNative(time)};
  return ResultOf(futimens(state_->file.number(), times));
}

SystemError OpenFile::Rename(const std::string& path, IfThere ifThere) {
  std::string place;
  struct stat there;
  const SystemError missing = FindAndAsk(path, place, there);
  if (missing == SystemError::None) {
    if (ifThere == IfThere::Fail) return SystemError::AlreadyExists;
    if (S_ISDIR(there.st_mode) || IsReadOnly(there)) return SystemError::AccessDenied;
    // Whoever could read the old file, such as a web server, can read the new one.
    if (fchmod(state_->file.number(), there.st_mode & 07777) != 0) return LastError();
  } else if (missing != SystemError::FileNotFound) {
    return missing;
  }
  const SystemError error = RenamePlace(state_->place, place, ifThere);
  if (error != SystemError::None) return error;
  state_->place = place;
  FlushFolderOf(place);
  return SystemError::None;
}

SystemError OpenFile::Close() {
  const SystemError error = state_->file.Close();
  state_ = nullptr;
  return error;
}

namespace FileCalls {

SystemError GetInfo(const std::string& path, Info& info) {
  std::string place;
  struct stat native;
  const SystemError error = FindAndAsk(path, place, native);
  if (error != SystemError::None) return error;
  info.isFolder = S_ISDIR(native.st_mode);
  info.attributes = {.isReadOnly = IsReadOnly(native)};
  info.size = static_cast<uint64_t>(native.st_size);
  info.lastWrite = FromNative(native.st_mtim);
  return SystemError::None;
}

SystemError SetAttributes(const std::string& path, FileAttributes attributes) {
  std::string place;
  struct stat info;
  const SystemError error = FindAndAsk(path, place, info);
  if (error != SystemError::None) return error;
  return ResultOf(chmod(place.c_str(), ModeWith(info.st_mode, attributes) & 07777));
}

SystemError Delete(const std::string& path) {
  std::string place;
  const SystemError error = Posix::Find(path, place);
  if (error != SystemError::None) return error;
  struct stat info;
  // A link is deleted itself, wherever it leads.
  if (lstat(place.c_str(), &info) != 0) return LastError();
  if (S_ISDIR(info.st_mode)) return SystemError::AccessDenied;
  if (S_ISREG(info.st_mode)) {
    if (IsReadOnly(info)) return SystemError::AccessDenied;
    const Descriptor file(open(place.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    const bool isBeingMade =
        file.number() >= 0 && flock(file.number(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    if (isBeingMade) return SystemError::SharingViolation;
    // The lock is held until the name has gone: see Open.
    return ResultOf(unlink(place.c_str()));
  }
  return ResultOf(unlink(place.c_str()));
}

SystemError Rename(const std::string& from, const std::string& to) {
  std::string placeFrom;
  std::string placeTo;
  SystemError error = Posix::Find(from, placeFrom);
  if (error == SystemError::None) error = Posix::Find(to, placeTo);
  if (error != SystemError::None) return error;
  struct stat info;
  if (lstat(placeFrom.c_str(), &info) != 0) return LastError();
  if (placeFrom == placeTo) {
    // Another letter case, or none: the name is found as it is spelled now.
    const size_t name = std::max(to.rfind('\\') + 1, to.rfind('/') + 1);
    placeTo = Posix::FolderOfPlace(placeFrom) + "/" + ToUtf8(to.substr(name));
    if (placeTo == placeFrom) return SystemError::None;
  }
  error = RenamePlace(placeFrom, placeTo, IfThere::Fail);
  if (error == SystemError::None) FlushFolderOf(placeTo);
  return error;
}

SystemError MakeFolder(const std::string& path) {
  std::string place;
  const SystemError error = Posix::Find(path, place);
  if (error != SystemError::None) return error;
  return ResultOf(mkdir(place.c_str(), NewFolder));
}

SystemError RemoveFolder(const std::string& path) {
  std::string place;
  struct stat info;
  const SystemError error = FindAndAsk(path, place, info);
  if (error != SystemError::None) return error;
  if (!S_ISDIR(info.st_mode)) return SystemError::NotADirectory;
  return ResultOf(rmdir(place.c_str()));
}

SystemError FreeSpace(const std::string& folder, uint64_t& bytes) {
  std::string place;
  struct statvfs disk;
  const SystemError error = Posix::Find(folder, place);
  if (error != SystemError::None) return error;
  if (statvfs(place.c_str(), &disk) != 0) return LastError();
  bytes = uint64_t{disk.f_bavail} * disk.f_frsize;
  return SystemError::None;
}

SystemError List(const std::string& folder, std::vector<FolderEntry>& entries) {
  std::string place;
  const SystemError error = Posix::Find(folder, place);
  if (error != SystemError::None) return error;
  const std::unique_ptr<DIR, int (*)(DIR*)> listing(opendir(place.c_str()), closedir);
  if (!listing) return LastError();
  for (;;) {
    errno = 0;
    const dirent* entry = readdir(listing.get());
    if (!entry) return errno == 0 ? SystemError::None : LastError();
    const std::string name = entry->d_name;
    if (name == "." || name == "..") continue;
    struct stat own;
    struct stat target;
    // One that has gone meanwhile is not there.
    if (fstatat(dirfd(listing.get()), entry->d_name, &own, AT_SYMLINK_NOFOLLOW) != 0) continue;
    const bool isFolder =
        fstatat(dirfd(listing.get()), entry->d_name, &target, 0) == 0 && S_ISDIR(target.st_mode);
    entries.push_back({Posix::NameFromDisk(name), isFolder, S_ISLNK(own.st_mode)});
  }
}

std::string TemporaryFolder() {
  return {};
}

bool WaitForOthers(int waits) {
  constexpr int MostWaits = 20;
  if (waits >= MostWaits) return false;
  const timespec pause{0, 50'000'000};
  nanosleep(&pause, nullptr);
  return true;
}

}  // namespace FileCalls

}  // namespace Platform
