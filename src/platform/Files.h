// Files and folders, as the program sees them.
//
// Paths are absolute, in the system code page, with "\" between folders; letter case is ignored to
// find a file and kept to make one. A path longer than 259 characters, or with a character that no
// name can hold, fails with PathFileAccess and the cause NameNotUsable.
// Every failure is a RuntimeError that carries the path. Beside those that a function names, any
// may fail with DiskNotReady, DeviceError or OutOfMemory.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Platform {

// True if the path's attributes can be read, false on any failure. A folder exists too.
bool FileExists(const std::string& path);

// What changes when another program writes a file: its size in bytes and its last-write time in the
// machine's finest unit.
struct FileStamp {
  uint64_t size;
  uint64_t lastWrite;
  bool operator==(const FileStamp&) const = default;
};

// The stamp of a file; nothing if there is no such file, or it cannot be asked.
std::optional<FileStamp> StampOf(const std::string& path);

// The whole contents of a file, byte for byte. Nothing if there is no such file or folder.
// Others may go on writing to the file meanwhile.
// Fails with PermissionDenied (another has it for itself, no right), PathFileAccess (a folder).
std::optional<std::string> ReadWholeFile(const std::string& path);

// Replaces the whole contents of a file, making the file if there is none.
//   bytes  written as given. May be empty.
// The file's attributes are kept. The bytes are written beside the file under a temporary name,
// flushed, and put in place in one step; a file that another program holds is tried again for up to
// a second. Where the folder refuses a new file but the file itself may be written, it is rewritten
// in place: the length is reserved first, then the bytes are written, then the file is cut.
// Fails with PathNotFound, PermissionDenied, PathFileAccess (read-only, a folder), DiskFull. The
// old contents are then still there, whole, and nothing is left beside them. Rewriting in place is
// not one step. The old contents are kept in a file "~xxxxxx.tmp" of the system's temporary folder
// until the new ones are flushed, and put back if that fails. If the program is ended meanwhile, or
// they cannot be put back either, the file may hold some of both, and that temporary file stays.
void WriteWholeFile(const std::string& path, std::string_view bytes);

// Adds bytes to the end of a file in one go, making the file if there is none. Does not wait for a
// file that another program holds. Fails as WriteWholeFile does; the file is then as long as
// before.
void AppendToFile(const std::string& path, std::string_view bytes);

// Deletes a file. False if there was none. Fails with PermissionDenied (in use), PathFileAccess
// (read-only, a folder).
bool RemoveFile(const std::string& path);

// A file that is read from its start to its end. While it is open it cannot be deleted or replaced;
// others may write to it, and what they add is read too.
class FileReader {
 public:
  // Fails with FileNotFound, PathNotFound, PermissionDenied (another has it for itself, no right),
  // PathFileAccess (a folder).
  explicit FileReader(const std::string& path);
  ~FileReader();
  FileReader(FileReader&&) noexcept;

  // Reads the next bytes, up to the given number of them. Returns how many; 0 at the end only.
  // Fails with PermissionDenied (another has locked a part), DeviceError.
  size_t Read(char* buffer, size_t size);

 private:
  struct Open;
  std::unique_ptr<Open> open_;
};

// A file that is written from start to end in pieces, too large to be built in memory. It takes its
// name only when it is whole; until then what stood under that name stays as it was.
class FileWriter {
 public:
  // Starts a file that will stand at the path. Fails as WriteWholeFile does.
  explicit FileWriter(const std::string& path);
  // A file that was not finished leaves nothing behind.
  ~FileWriter();

  // Adds bytes. Fails with DiskFull.
  void Write(std::string_view bytes);

  // Flushes the file and puts it in place, with the attributes of the file that it replaces. Fails
  // as WriteWholeFile does, with the same promise; nothing may be written afterwards.
  void Finish();

 private:
  struct Open;
  std::unique_ptr<Open> open_;
};

}  // namespace Platform
