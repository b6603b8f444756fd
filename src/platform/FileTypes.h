// What the services of Files.h tell of files, and are told.
#pragma once

#include <cstdint>
#include <string>

namespace Platform {

// What changes when another program writes a file: its size in bytes and its last-write time, in
// steps of 100 nanoseconds since the year 1601, UTC.
struct FileStamp {
  uint64_t size;
  uint64_t lastWrite;
  bool operator==(const FileStamp&) const = default;
};

struct FileAttributes {
  bool isReadOnly = false;
  bool isHidden = false;
  bool isSystem = false;
  bool operator==(const FileAttributes&) const = default;
};

// What a folder holds. In the name "?" stands for a character that the code page lacks; such a name
// cannot be used (see IsNameUsable).
struct FolderEntry {
  std::string name;
  bool isFolder = false;
  // It only leads to a file or folder elsewhere, so that a walk through folders may come round to
  // where it was.
  bool isLink = false;
};

// What is done where a name is taken already.
enum class IfThere {
  Fail,     // FileAlreadyExists, and what is there stays as it is
  Replace,  // it is replaced
};

}  // namespace Platform
