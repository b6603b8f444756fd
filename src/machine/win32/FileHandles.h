// Opening files and moving their bytes, for the services in Files.h.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "machine/win32/Failure.h"
#include "machine/win32/Handle.h"
#include "machine/win32/System.h"

namespace Platform {

// A path with a file open under it. Each call fails with the RuntimeError that FailWith gives it.
class OpenFile {
 public:
  OpenFile() = default;
  // What CreateFileA asks for: access, sharing and disposition. Not usable if IsOpen() is false;
  // the reason is in error(). Only files on a disk are opened, never devices.
  OpenFile(const std::string& path, DWORD access, DWORD sharing, DWORD disposition,
           DWORD attributes = FILE_ATTRIBUTE_NORMAL);

  bool IsOpen() const { return static_cast<bool>(handle_); }
  // True if OPEN_ALWAYS has made the file.
  bool IsNew() const { return isNew_; }
  DWORD error() const { return error_; }
  const std::string& path() const { return path_; }
  HANDLE get() const { return handle_.get(); }

  size_t Read(char* buffer, size_t size);
  void Write(std::string_view bytes);
  uint64_t Size() const;
  // Moves to a place counted from the start.
  void Seek(uint64_t place);
  // Ends the file at a length, which becomes the place too.
  void SetLength(uint64_t length);
  void Flush();
  void Close();

 private:
  [[noreturn]] void Fail(Access access) const;

  Handle handle_;
  DWORD error_ = ERROR_SUCCESS;
  bool isNew_ = false;
  std::string path_;
};

// Fails with PathFileAccess if a path is no name for a file that is to be written, or what stands
// there is a folder or write-protected.
void CheckWritable(const std::string& path);

// Runs an attempt, which returns ERROR_SUCCESS or a system error, again and again for up to a
// second while another program, such as a virus scanner, holds the file. Returns the last error.
template <class Attempt>
DWORD TryWhileInUse(const Attempt& attempt, bool (*isInUse)(DWORD) = IsInUse) {
  constexpr ULONGLONG PatienceMs = 1000;
  constexpr DWORD PauseMs = 50;
  const ULONGLONG start = GetTickCount64();
  for (;;) {
    const DWORD error = attempt();
    if (!isInUse(error) || GetTickCount64() - start >= PatienceMs) return error;
    Sleep(PauseMs);
  }
}

}  // namespace Platform
