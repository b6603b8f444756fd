// Reads a text line by line from a source of blocks, in bounded memory.
#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

class LineReader {
 public:
  // Fills a buffer with the next bytes of the source and returns how many; 0 at the end.
  using Source = std::function<size_t(char* buffer, size_t size)>;

  // The most that is given of a line at once, in bytes. No line of the game comes near it.
  static constexpr size_t LongestPiece = 1 << 16;

  explicit LineReader(Source source);

  // Takes the next line, without its end. A line ends at CR or CR LF; a lone LF is part of the
  // line. A text that ends in a line end has no further empty line behind it.
  //   line   valid until the next call. If it has LongestPiece bytes, more of the line may follow:
  //          NextPiece gives it, and otherwise the next call passes over it.
  // Returns false at the end of the text. Fails with whatever the source fails with.
  bool Next(std::string_view& line);

  // Takes the next piece of the line that Next has begun, again up to LongestPiece bytes.
  // Returns false if the line has been given whole. Fails as Next does.
  bool NextPiece(std::string_view& piece);

  // Passes over the next line, which may be of any length. Returns false at the end of the text.
  // Fails as Next does.
  bool Skip();

 private:
  static size_t FindCr(const char* text, size_t size);
  bool NextWithAnyEnd(std::string_view& line);
  bool Take(std::string_view& piece);
  void PassRest();
  bool PassCr(size_t length);
  bool PassLf();
  bool Refill();

  Source source_;
  // The unread bytes are buffer_[begin_, end_), at most LongestPiece. FindCr looks a few bytes
  // further.
  std::vector<char> buffer_;
  size_t begin_ = 0;
  size_t end_ = 0;
  bool isAtEnd_ = false;
  bool hasRest_ = false;    // more of the line that was given last may follow
  bool endedInCr_ = false;  // CR was the last byte of a block: an LF that comes next belongs to it
};

// All lines of a text that is in memory, by the rules of LineReader but of any length.
std::vector<std::string> LinesOf(std::string_view text);

// The number of bytes before the first CR; at least size if there is none. Most lines are a few
// bytes long: eight at a time are examined without a call. Up to seven bytes behind the text are
// looked at too.
inline size_t LineReader::FindCr(const char* text, size_t size) {
  static_assert(std::endian::native == std::endian::little);
  constexpr uint64_t Ones = 0x0101010101010101;
  constexpr size_t Short = 32;
  for (size_t at = 0; at < std::min(size, Short); at += sizeof(uint64_t)) {
    uint64_t bytes;
    std::memcpy(&bytes, text + at, sizeof bytes);
    const uint64_t crIsZero = bytes ^ (Ones * '\r');
    // The lowest bit that is set stands in the first byte that is zero.
    const uint64_t zeros = (crIsZero - Ones) & ~crIsZero & (Ones * 0x80);
    if (zeros != 0) return at + static_cast<size_t>(std::countr_zero(zeros)) / 8;
  }
  if (size <= Short) return size;
  const void* cr = std::memchr(text + Short, '\r', size - Short);
  return cr ? static_cast<size_t>(static_cast<const char*>(cr) - text) : size;
}

inline bool LineReader::Next(std::string_view& line) {
  const char* const unread = buffer_.data() + begin_;
  const size_t length = FindCr(unread, end_ - begin_);
  // Nearly every line ends in CR LF. Adding one or two according to the next byte would do for all,
  // but each line would then wait for that byte of the line before.
  if (length + 1 >= end_ - begin_ || hasRest_ || unread[length + 1] != '\n') [[unlikely]] {
    return NextWithAnyEnd(line);
  }
  line = {unread, length};
  begin_ += length + 2;
  return true;
}
