// A file of the machine that runs the tests, for what is too large to be held in memory.
#pragma once

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>

#include <unistd.h>

class HostFile {
 public:
  HostFile() : path_((std::filesystem::temp_directory_path() / "sk2testXXXXXX").string()) {
    const int descriptor = mkstemp(path_.data());
    if (descriptor < 0) throw std::runtime_error("no temporary file can be made");
    close(descriptor);
  }
  ~HostFile() {
    std::error_code ignored;
    std::filesystem::remove(path_, ignored);
  }
  HostFile(const HostFile&) = delete;
  HostFile& operator=(const HostFile&) = delete;

  const std::string& path() const { return path_; }

  // Appends a piece again and again, until it has made the file longer by at least that many bytes.
  // Returns how many times that was.
  size_t Repeat(std::string_view piece, size_t bytes) {
    std::ofstream file(path_, std::ios::binary | std::ios::app);
    size_t times = 0;
    for (; times * piece.size() < bytes; ++times) {
      file.write(piece.data(), static_cast<std::streamsize>(piece.size()));
    }
    if (!file.flush()) throw std::runtime_error("the temporary file cannot be written");
    return times;
  }

 private:
  std::string path_;
};
