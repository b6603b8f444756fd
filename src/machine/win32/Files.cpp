#include "platform/Files.h"

#include "base/RuntimeError.h"
#include "machine/win32/FileHandles.h"
#include "platform/Paths.h"

namespace Platform {

bool FileExists(const std::string& path) {
  return IsNameUsable(path) && GetFileAttributesA(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

std::optional<FileStamp> StampOf(const std::string& path) {
  WIN32_FILE_ATTRIBUTE_DATA data;
  if (!IsNameUsable(path) || !GetFileAttributesExA(path.c_str(), GetFileExInfoStandard, &data) ||
      (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY)) {
    return std::nullopt;
  }
  const auto join = [](DWORD high, DWORD low) { return uint64_t{high} << 32 | low; };
  return FileStamp{join(data.nFileSizeHigh, data.nFileSizeLow),
                   join(data.ftLastWriteTime.dwHighDateTime, data.ftLastWriteTime.dwLowDateTime)};
}

std::optional<std::string> ReadWholeFile(const std::string& path) {
  CheckName(path);
  // Others may go on writing: what they do to the file is none of the reader's business.
  OpenFile file(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN);
  if (!file.IsOpen()) {
    if (file.error() == ERROR_FILE_NOT_FOUND || file.error() == ERROR_PATH_NOT_FOUND) {
      return std::nullopt;
    }
    FailWith(file.error(), path, Access::Reading);
  }
  const uint64_t size = file.Size();
  if (size > std::string().max_size()) throw RuntimeError(RuntimeError::OutOfMemory, path);
  std::string bytes(static_cast<size_t>(size), '\0');
  size_t length = 0;
  while (length < bytes.size()) {
    const size_t count = file.Read(bytes.data() + length, bytes.size() - length);
    if (count == 0) break;
    length += count;
  }
  bytes.resize(length);
  return bytes;
}

void WriteWholeFile(const std::string& path, std::string_view bytes) {
  FileWriter writer(path);
  writer.Write(bytes);
  writer.Finish();
}

void AppendToFile(const std::string& path, std::string_view bytes) {
  CheckWritable(path);
  OpenFile file(path, GENERIC_WRITE, FILE_SHARE_READ, OPEN_ALWAYS);
  if (!file.IsOpen()) FailWith(file.error(), path, Access::Writing);
  const bool isNew = file.IsNew();

  const uint64_t length = file.Size();
  file.Seek(length);
  // One call, so that no reader and no failure ever sees half a line.
  DWORD count = 0;
  const BOOL isWritten =
      WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr);
  if (isWritten && count == bytes.size()) return file.Close();
  const DWORD failure = isWritten ? ERROR_DISK_FULL : GetLastError();
  try {
    file.SetLength(length);
    file.Close();
  } catch (const RuntimeError&) {
    // What the user is told is the first failure.
  }
  if (isNew) DeleteFileA(path.c_str());
  FailWith(failure, path, Access::Writing);
}

bool RemoveFile(const std::string& path) {
  CheckName(path);
  if (DeleteFileA(path.c_str())) return true;
  const DWORD error = GetLastError();
  if (error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND) return false;
  FailWith(error, path, Access::Writing);
}

}  // namespace Platform
