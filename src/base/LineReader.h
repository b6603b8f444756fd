// Reads a text line by line from a source of blocks, in bounded memory.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

class LineReader {
 public:
  // Fills a buffer with the next bytes of the source and returns how many; 0 at the end.
  using Source = std::function<size_t(char* buffer, size_t size)>;

  // The longest line, in bytes. No file of the game comes near it.
  static constexpr size_t LongestLine = 1 << 20;

  explicit LineReader(Source source);

  // Takes the next line, without its end. A line ends at CR or CR LF; a lone LF is part of the
  // line. A text that ends in a line end has no further empty line behind it.
  //   line   valid until the next call.
  // Returns false at the end of the text. Fails with RuntimeError OutOfMemory at a line longer than
  // LongestLine, and with whatever the source fails with.
  bool Next(std::string_view& line);

 private:
  bool Refill();

  Source source_;
  std::vector<char> buffer_;
  size_t begin_ = 0;  // the unread bytes are buffer_[begin_, end_)
  size_t end_ = 0;
  bool isAtEnd_ = false;
  bool endedInCr_ = false;  // the last line ended in CR: an LF that comes next belongs to it
};

// All lines of a text that is in memory, by the rules of LineReader but of any length.
std::vector<std::string> LinesOf(std::string_view text);
