// The file that is written. Implemented by win32/TargetFile.cpp, and by the tests for disks that
// fail.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace ORec {

class TargetFile {
 public:
  // Makes it, or empties the one that is there. Null if that is refused.
  //   path  in the system code page.
  static std::unique_ptr<TargetFile> Open(const std::string& path);
  // Closes it. What was written is there for all who read it, also if this process ends now.
  ~TargetFile();
  TargetFile(const TargetFile&) = delete;
  TargetFile& operator=(const TargetFile&) = delete;

  // False if not all of it could be written.
  bool WriteAt(uint64_t place, std::string_view bytes);

  struct Native;

 private:
  TargetFile();
  std::unique_ptr<Native> native_;
};

}  // namespace ORec
