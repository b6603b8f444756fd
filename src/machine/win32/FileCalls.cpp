#include "platform/FileCalls.h"

#include <algorithm>
#include <cstring>
#include <vector>

#include "machine/win32/CodePage.h"
#include "machine/win32/Handle.h"
#include "machine/win32/System.h"
#include "platform/Paths.h"

namespace Platform {

namespace {

// The system takes 32-bit counts, and some network drives refuse larger blocks than this.
constexpr size_t LargestBlock = size_t{1} << 24;

SystemError LastError() {
  const DWORD error = GetLastError();
  // A call that fails without saying why has failed all the same.
  return error ? static_cast<SystemError>(error) : SystemError::DeviceFailed;
}

SystemError ResultOf(BOOL wentWell) {
  return wentWell ? SystemError::None : LastError();
}

uint64_t Join(DWORD high, DWORD low) {
  return uint64_t{high} << 32 | low;
}

FileAttributes FromNative(DWORD native) {
  return {(native & FILE_ATTRIBUTE_READONLY) != 0, (native & FILE_ATTRIBUTE_HIDDEN) != 0,
          (native & FILE_ATTRIBUTE_SYSTEM) != 0};
}

DWORD ToNative(FileAttributes attributes) {
  // Never 0, which would leave the attributes as they are where they are set by the handle.
  DWORD native = FILE_ATTRIBUTE_ARCHIVE;
  if (attributes.isReadOnly) native |= FILE_ATTRIBUTE_READONLY;
  if (attributes.isHidden) native |= FILE_ATTRIBUTE_HIDDEN;
  if (attributes.isSystem) native |= FILE_ATTRIBUTE_SYSTEM;
  return native;
}

struct Terms {
  DWORD access;
  DWORD sharing;
  DWORD disposition;
};

Terms TermsOf(OpenFile::How how) {
  using How = OpenFile::How;
  constexpr DWORD ReadWrite = GENERIC_READ | GENERIC_WRITE;
  constexpr DWORD ShareBoth = FILE_SHARE_READ | FILE_SHARE_WRITE;
  switch (how) {
    case How::ToRead: return {GENERIC_READ, ShareBoth, OPEN_EXISTING};
    case How::ToGlance: return {GENERIC_READ, ShareBoth | FILE_SHARE_DELETE, OPEN_EXISTING};
    case How::ToAppend: return {GENERIC_WRITE, FILE_SHARE_READ, OPEN_ALWAYS};
    case How::ToRewrite: return {ReadWrite, FILE_SHARE_READ, OPEN_EXISTING};
    case How::ToRewriteShared: return {ReadWrite, ShareBoth, OPEN_EXISTING};
    case How::New: return {ReadWrite | DELETE, FILE_SHARE_READ, CREATE_NEW};
  }
  return {};
}

}  // namespace

struct OpenFile::State {
  Handle handle;
  bool isNew;
};

OpenFile::OpenFile() = default;
OpenFile::~OpenFile() = default;
OpenFile::OpenFile(OpenFile&&) noexcept = default;
OpenFile& OpenFile::operator=(OpenFile&&) noexcept = default;

SystemError OpenFile::Open(const std::string& path, How how) {
  state_ = nullptr;
  const Terms terms = TermsOf(how);
  const bool isRead = how == How::ToRead || how == How::ToGlance;
  const DWORD flags = isRead ? FILE_FLAG_SEQUENTIAL_SCAN : FILE_ATTRIBUTE_NORMAL;
  Handle handle(CreateFileA(path.c_str(), terms.access, terms.sharing, nullptr, terms.disposition,
                            flags, nullptr));
  if (!handle) return LastError();
  // That a file was there already is told by this code of a call that went well.
  const bool isNew =
      how == How::New || (how == How::ToAppend && GetLastError() != ERROR_ALREADY_EXISTS);
  // What is new is a file: the names of devices never come as far as here. A path to something else
  // may have another form.
  if (!isNew && GetFileType(handle.get()) != FILE_TYPE_DISK) return SystemError::InvalidName;
  state_ = std::make_unique<State>(State{std::move(handle), isNew});
  return SystemError::None;
}

bool OpenFile::IsNew() const {
  return state_ && state_->isNew;
}

SystemError OpenFile::Read(char* buffer, size_t size, size_t& count) {
  DWORD read = 0;
  const auto most = static_cast<DWORD>(std::min(size, LargestBlock));
  const SystemError error = ResultOf(ReadFile(state_->handle.get(), buffer, most, &read, nullptr));
  count = read;
  return error;
}

SystemError OpenFile::Write(std::string_view bytes) {
  while (!bytes.empty()) {
    const auto size = static_cast<DWORD>(std::min(bytes.size(), LargestBlock));
    DWORD count = 0;
    if (!WriteFile(state_->handle.get(), bytes.data(), size, &count, nullptr)) return LastError();
    // Neither progress nor failure: it would go round for ever.
    if (count == 0) return SystemError::DiskFull;
    bytes.remove_prefix(count);
  }
  return SystemError::None;
}

SystemError OpenFile::Size(uint64_t& size) {
  LARGE_INTEGER native{};
  const SystemError error = ResultOf(GetFileSizeEx(state_->handle.get(), &native));
  size = static_cast<uint64_t>(native.QuadPart);
  return error;
}

SystemError OpenFile::Seek(uint64_t place) {
  LARGE_INTEGER distance;
  distance.QuadPart = static_cast<LONGLONG>(place);
  return ResultOf(SetFilePointerEx(state_->handle.get(), distance, nullptr, FILE_BEGIN));
}

SystemError OpenFile::SetLength(uint64_t length) {
  const SystemError error = Seek(length);
  return error == SystemError::None ? ResultOf(SetEndOfFile(state_->handle.get())) : error;
}

SystemError OpenFile::Flush() {
  return ResultOf(FlushFileBuffers(state_->handle.get()));
}

// By the handle: nothing has to be opened, so no other program can be in the way.
SystemError OpenFile::SetAttributes(FileAttributes attributes) {
  FILE_BASIC_INFO info{};  // a time of 0 stays as it is
  info.FileAttributes = ToNative(attributes);
  return ResultOf(
      SetFileInformationByHandle(state_->handle.get(), FileBasicInfo, &info, sizeof info));
}

SystemError OpenFile::SetLastWrite(uint64_t time) {
  FILETIME native;
  native.dwHighDateTime = static_cast<DWORD>(time >> 32);
  native.dwLowDateTime = static_cast<DWORD>(time);
  return ResultOf(SetFileTime(state_->handle.get(), nullptr, nullptr, &native));
}

SystemError OpenFile::Rename(const std::string& path, IfThere ifThere) {
  const std::wstring name = Widen(path);
  const size_t bytes = name.size() * sizeof(wchar_t);
  std::vector<char> room(sizeof(FILE_RENAME_INFO) + bytes);
  auto& info = *reinterpret_cast<FILE_RENAME_INFO*>(room.data());
  info.ReplaceIfExists = ifThere == IfThere::Replace;
  info.FileNameLength = static_cast<DWORD>(bytes);
  std::memcpy(info.FileName, name.c_str(), bytes + sizeof(wchar_t));
  return ResultOf(SetFileInformationByHandle(state_->handle.get(), FileRenameInfo, room.data(),
                                             static_cast<DWORD>(room.size())));
}

SystemError OpenFile::Close() {
  const bool arrived = state_->handle.Close();
  const SystemError error = ResultOf(arrived);
  state_ = nullptr;
  return error;
}

namespace FileCalls {

SystemError GetInfo(const std::string& path, Info& info) {
  WIN32_FILE_ATTRIBUTE_DATA data;
  if (!GetFileAttributesExA(path.c_str(), GetFileExInfoStandard, &data)) return LastError();
  info.isFolder = (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  info.attributes = FromNative(data.dwFileAttributes);
  info.size = Join(data.nFileSizeHigh, data.nFileSizeLow);
  info.lastWrite = Join(data.ftLastWriteTime.dwHighDateTime, data.ftLastWriteTime.dwLowDateTime);
  return SystemError::None;
}

SystemError SetAttributes(const std::string& path, FileAttributes attributes) {
  return ResultOf(SetFileAttributesA(path.c_str(), ToNative(attributes)));
}

SystemError Delete(const std::string& path) {
  return ResultOf(DeleteFileA(path.c_str()));
}

SystemError Rename(const std::string& from, const std::string& to) {
  // It neither replaces a file nor copies one to another drive: no flag asks for that.
  return ResultOf(MoveFileExA(from.c_str(), to.c_str(), MOVEFILE_WRITE_THROUGH));
}

SystemError MakeFolder(const std::string& path) {
  return ResultOf(CreateDirectoryA(path.c_str(), nullptr));
}

SystemError RemoveFolder(const std::string& path) {
  return ResultOf(RemoveDirectoryA(path.c_str()));
}

// What is left to the user, whose share of the disk may be limited. A server's share must have a
// backslash at its end.
SystemError FreeSpace(const std::string& folder, uint64_t& bytes) {
  ULARGE_INTEGER available{};
  const BOOL isTold = GetDiskFreeSpaceExA((folder + "\\").c_str(), &available, nullptr, nullptr);
  bytes = available.QuadPart;
  return ResultOf(isTold);
}

// By wide names: the system's own narrow ones turn a letter that the code page lacks into one that
// looks like it, which is the name of another file.
SystemError List(const std::string& folder, std::vector<FolderEntry>& entries) {
  WIN32_FIND_DATAW found;
  const HANDLE search = FindFirstFileW(Widen(folder + "\\*").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return LastError();
  do {
    const std::string name = Narrow(found.cFileName);
    if (name == "." || name == "..") continue;
    // Of the kinds of reparse points these two lead elsewhere; files of the cloud are where they
    // are.
    const bool isLink = (found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
                        (found.dwReserved0 == IO_REPARSE_TAG_SYMLINK ||
                         found.dwReserved0 == IO_REPARSE_TAG_MOUNT_POINT);
    entries.push_back({name, (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0, isLink});
  } while (FindNextFileW(search, &found));
  const SystemError error = LastError();
  FindClose(search);
  return error == static_cast<SystemError>(ERROR_NO_MORE_FILES) ? SystemError::None : error;
}

std::string TemporaryFolder() {
  char path[MAX_PATH + 1];
  const DWORD length = GetTempPathA(sizeof path, path);
  if (length == 0 || length >= sizeof path) return {};
  return FolderOf(std::string(path, length));
}

bool WaitForOthers(int waits) {
  constexpr int PatienceMs = 1000;
  constexpr DWORD PauseMs = 50;
  if (waits >= PatienceMs / static_cast<int>(PauseMs)) return false;
  Sleep(PauseMs);
  return true;
}

}  // namespace FileCalls

}  // namespace Platform
