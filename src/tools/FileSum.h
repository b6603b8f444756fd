// What tells one file from another: its size and its SHA-256 checksum.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

struct FileSum {
  uint64_t size = 0;
  std::string sha256;  // 64 hexadecimal digits
  bool operator==(const FileSum&) const = default;
};

FileSum SumOfText(std::string_view bytes);

// Reads the file in a fixed amount of memory. Fails as Platform::FileReader does.
FileSum SumOfFile(const std::string& path);
