// An open file whose calls fail with the RuntimeError that the user is to be told.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/FileCalls.h"
#include "platform/FileFailure.h"

namespace Platform {

class CheckedFile {
 public:
  // How much is read and written at once where a file goes through memory.
  static constexpr size_t BlockSize = size_t{1} << 20;

  CheckedFile() = default;
  // The path under which the user knows the file: that of the file to be, for one beside it.
  CheckedFile(OpenFile file, std::string path) : file_(std::move(file)), path_(std::move(path)) {}

  OpenFile& file() { return file_; }
  bool IsOpen() const { return file_.IsOpen(); }

  size_t Read(char* buffer, size_t size) {
    size_t count = 0;
    Require(file_.Read(buffer, size, count), path_, FileStep::Reading);
    return count;
  }
  // Reads until that many bytes are there, or the file ends.
  size_t ReadFully(char* buffer, size_t size) {
    size_t all = 0;
    while (const size_t count = all < size ? Read(buffer + all, size - all) : 0) all += count;
    return all;
  }
  void Write(std::string_view bytes) { Require(file_.Write(bytes), path_, FileStep::Writing); }
  uint64_t Size() {
    uint64_t size = 0;
    Require(file_.Size(size), path_, FileStep::Reading);
    return size;
  }
  void Seek(uint64_t place) { Require(file_.Seek(place), path_, FileStep::Reading); }
  void SetLength(uint64_t length) { Require(file_.SetLength(length), path_, FileStep::Writing); }
  void Flush() { Require(file_.Flush(), path_, FileStep::Writing); }

  // Writes all that another file holds, from this one's start on.
  void CopyFrom(CheckedFile& other) {
    std::vector<char> block(BlockSize);
    other.Seek(0);
    Seek(0);
    while (const size_t count = other.Read(block.data(), block.size())) {
      Write({block.data(), count});
    }
  }

 private:
  OpenFile file_;
  std::string path_;
};

}  // namespace Platform
