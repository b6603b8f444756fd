// Bytes that can be read from any place: of an archive on the disk, or of one that is being written
// and is read back before it gets its name.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Files.h"

namespace Archive {

class ByteSource {
 public:
  ByteSource() = default;
  virtual ~ByteSource() = default;
  ByteSource(const ByteSource&) = delete;
  ByteSource& operator=(const ByteSource&) = delete;

  // The path under which the user knows the file.
  virtual const std::string& path() const = 0;
  // How many bytes there were at the beginning.
  virtual uint64_t size() const = 0;
  // Reads up to so many bytes. Returns how many; 0 at the end only. Fails as FileReader does.
  virtual size_t Read(uint64_t place, char* buffer, size_t size) = 0;
};

// A file that is there. Others may write to it meanwhile, so what is read twice may differ.
class FileSource final : public ByteSource {
 public:
  // Fails as FileReader does.
  explicit FileSource(const std::string& path);

  const std::string& path() const override { return path_; }
  uint64_t size() const override { return size_; }
  size_t Read(uint64_t place, char* buffer, size_t size) override;

 private:
  std::string path_;
  Platform::FileReader file_;
  uint64_t size_;
  uint64_t place_ = 0;
};

// What a writer has written so far.
class WrittenSource final : public ByteSource {
 public:
  WrittenSource(Platform::FileWriter& writer, const std::string& path, uint64_t size)
      : writer_(writer), path_(path), size_(size) {}

  const std::string& path() const override { return path_; }
  uint64_t size() const override { return size_; }
  size_t Read(uint64_t place, char* buffer, size_t size) override {
    return writer_.ReadBack(place, buffer, size);
  }

 private:
  Platform::FileWriter& writer_;
  std::string path_;
  uint64_t size_;
};

// Small parts of a source, read through one piece of memory.
class Window {
 public:
  //   ahead  how many bytes are read at once where what is asked for is shorter.
  Window(ByteSource& source, size_t ahead) : source_(source), ahead_(ahead) {}

  // The bytes at a place, until the next call; nothing if the source ends before.
  std::optional<std::string_view> At(uint64_t place, size_t size);

 private:
  ByteSource& source_;
  size_t ahead_;
  uint64_t start_ = 0;
  std::string bytes_;
};

}  // namespace Archive
