// A file in the program folder into which something is fetched, to be read and forgotten.
#pragma once

#include <string>

class TemporaryFile {
 public:
  // No list, page or version record comes near it.
  static constexpr size_t LargestRead = 8 << 20;

  //   name  such as "read.tmp".
  explicit TemporaryFile(const std::string& name);
  // Removes the file if it is there and can be removed: whatever has become of the step that it was
  // for, nobody needs it any more.
  ~TemporaryFile();
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  const std::string& path() const { return path_; }

  // All that is in it, or in any other file that was fetched. Fails with FileNotFound; with
  // Overflow, cause DownloadTooLarge, if it is longer than LargestRead; and as
  // Platform::ReadWholeFile does.
  std::string Read() const { return Read(path_); }
  static std::string Read(const std::string& path);

 private:
  std::string path_;
};
