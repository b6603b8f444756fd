// The machine's own calls on files, one by one. The services of Files.h are made of them and are
// the same on every machine, so that what stands on the disk between two calls can be looked at.
//
// Each call does one thing at once or not at all and returns the system's code, None if it went
// well. Paths are those of Files.h; nobody but its services comes here.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/FileTypes.h"
#include "platform/SystemError.h"

namespace Platform {

// A file that is open. It is closed with the object.
class OpenFile {
 public:
  enum class How {
    ToRead,           // others may write to it meanwhile, but not delete or replace it
    ToGlance,         // others may do all of that
    ToGuard,          // others may read it and do nothing else, on a machine that can see to that
    ToAppend,         // to its end; made if there is none. Others may read it
    ToRewrite,        // read and written. Others may read it
    ToRewriteShared,  // the same for a file that another program is writing too
    New,              // read, written and renamed; made, and must not be there. Others may read it
  };

  OpenFile();
  ~OpenFile();
  OpenFile(OpenFile&&) noexcept;
  OpenFile& operator=(OpenFile&&) noexcept;

  // A file that is there is opened only if it lies on a disk; a device gives InvalidName.
  SystemError Open(const std::string& path, How how);
  bool IsOpen() const { return state_ != nullptr; }
  // True if ToAppend or New has made the file.
  bool IsNew() const;

  // Reads from its place on, up to that many bytes; a count of 0 is the end.
  SystemError Read(char* buffer, size_t size, size_t& count);
  // Writes all the bytes at its place; after a failure some of them may have been written.
  SystemError Write(std::string_view bytes);
  SystemError Size(uint64_t& size);
  SystemError Seek(uint64_t place);
  // Ends the file at a length, which becomes its place too.
  SystemError SetLength(uint64_t length);
  SystemError Flush();
  SystemError SetAttributes(FileAttributes attributes);
  SystemError SetLastWrite(uint64_t time);
  // Gives a new file another name in its folder's volume, open as it is. What stands there under
  // that name is replaced if it may be; a file that anyone has open or that is read-only may not.
  SystemError Rename(const std::string& path, IfThere ifThere);
  // Closes the file, which fails where what was written did not arrive.
  SystemError Close();

 private:
  struct State;
  std::unique_ptr<State> state_;
};

namespace FileCalls {

struct Info {
  bool isFolder = false;
  FileAttributes attributes;
  uint64_t size = 0;
  uint64_t lastWrite = 0;
};

SystemError GetInfo(const std::string& path, Info& info);
SystemError SetAttributes(const std::string& path, FileAttributes attributes);
// Deletes a file that is not read-only.
SystemError Delete(const std::string& path);
// Gives a file or folder another name in the same volume, which nothing may have yet.
SystemError Rename(const std::string& from, const std::string& to);
SystemError MakeFolder(const std::string& path);
// Deletes a folder in which nothing is.
SystemError RemoveFolder(const std::string& path);
// What the user may still write into a folder, in bytes.
SystemError FreeSpace(const std::string& folder, uint64_t& bytes);
// Appends what is in a folder, without "." and "..", in the system's order.
SystemError List(const std::string& folder, std::vector<FolderEntry>& entries);

// Where the system keeps temporary files, without a backslash at its end; empty if there is none.
std::string TemporaryFolder();

// Waits a moment for another program to let go of a file.
//   waits  how often that was done before. False if it has been long enough, about a second.
bool WaitForOthers(int waits);

}  // namespace FileCalls

}  // namespace Platform
