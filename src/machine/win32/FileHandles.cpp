#include "machine/win32/FileHandles.h"

#include <algorithm>

#include "base/RuntimeError.h"
#include "platform/Paths.h"

namespace Platform {

namespace {
// The system takes 32-bit counts, and some network drives refuse larger blocks than this.
constexpr size_t LargestBlock = size_t{1} << 24;
}  // namespace

OpenFile::OpenFile(const std::string& path, DWORD access, DWORD sharing, DWORD disposition,
                   DWORD attributes)
    : path_(path) {
  handle_ =
      Handle(CreateFileA(path.c_str(), access, sharing, nullptr, disposition, attributes, nullptr));
  error_ = GetLastError();
  if (!handle_) return;
  isNew_ = error_ != ERROR_ALREADY_EXISTS;
  error_ = ERROR_SUCCESS;
  if (GetFileType(handle_.get()) != FILE_TYPE_DISK) {
    handle_.Close();
    error_ = ERROR_INVALID_NAME;  // a device such as "con"
  }
}

void OpenFile::Fail(Access access) const {
  FailWith(GetLastError(), path_, access);
}

size_t OpenFile::Read(char* buffer, size_t size) {
  DWORD count = 0;
  if (!ReadFile(get(), buffer, static_cast<DWORD>(std::min(size, LargestBlock)), &count, nullptr)) {
    Fail(Access::Reading);
  }
  return count;
}

void OpenFile::Write(std::string_view bytes) {
  while (!bytes.empty()) {
    const auto size = static_cast<DWORD>(std::min(bytes.size(), LargestBlock));
    DWORD count = 0;
    if (!WriteFile(get(), bytes.data(), size, &count, nullptr)) Fail(Access::Writing);
    if (count == 0) FailWith(ERROR_DISK_FULL, path_, Access::Writing);
    bytes.remove_prefix(count);
  }
}

uint64_t OpenFile::Size() const {
  LARGE_INTEGER size;
  if (!GetFileSizeEx(get(), &size)) Fail(Access::Reading);
  return static_cast<uint64_t>(size.QuadPart);
}

void OpenFile::Seek(uint64_t place) {
  LARGE_INTEGER distance;
  distance.QuadPart = static_cast<LONGLONG>(place);
  if (!SetFilePointerEx(get(), distance, nullptr, FILE_BEGIN)) Fail(Access::Writing);
}

void OpenFile::SetLength(uint64_t length) {
  Seek(length);
  if (!SetEndOfFile(get())) Fail(Access::Writing);
}

void OpenFile::Flush() {
  if (!FlushFileBuffers(get())) Fail(Access::Writing);
}

void OpenFile::Close() {
  if (!handle_.Close()) Fail(Access::Writing);
}

void CheckWritable(const std::string& path) {
  CheckName(path);
  const DWORD attributes = GetFileAttributesA(path.c_str());
  if (attributes != INVALID_FILE_ATTRIBUTES &&
      (attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY))) {
    throw RuntimeError(RuntimeError::PathFileAccess, path);
  }
}

}  // namespace Platform
