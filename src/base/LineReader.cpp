#include "base/LineReader.h"

#include <utility>

namespace {
// What FindCr may look at behind the bytes that were read.
constexpr size_t Margin = sizeof(uint64_t);
}  // namespace

LineReader::LineReader(Source source)
    : source_(std::move(source)), buffer_(LongestPiece + Margin) {}

// The next line where its end is not, or not wholly, among the bytes that were read, or is a CR
// alone, or where more of the line before is to be passed over.
bool LineReader::NextWithAnyEnd(std::string_view& line) {
  PassRest();
  return PassLf() && Take(line);
}

bool LineReader::NextPiece(std::string_view& piece) {
  if (!hasRest_) return false;
  Take(piece);
  // The line's end may have come directly behind the piece before.
  return !piece.empty();
}

bool LineReader::Skip() {
  PassRest();
  std::string_view piece;
  return PassLf() && Take(piece);
}

// Takes the unread bytes up to the end of the line, or as many as fit the buffer. Returns false if
// there is no line at all.
bool LineReader::Take(std::string_view& piece) {
  size_t length = FindCr(buffer_.data() + begin_, end_ - begin_);
  while (length >= end_ - begin_) {
    // What was searched already is not searched again when more has been read.
    const size_t searched = end_ - begin_;
    if (searched == LongestPiece || !Refill()) break;
    length = searched + FindCr(buffer_.data() + begin_ + searched, end_ - begin_ - searched);
  }
  length = std::min(length, end_ - begin_);
  piece = {buffer_.data() + begin_, length};
  hasRest_ = length == LongestPiece;
  if (!hasRest_) return PassCr(length);
  begin_ = end_;
  return true;
}

// Passes over what is left of the line that was given last.
void LineReader::PassRest() {
  for (std::string_view piece; hasRest_;) Take(piece);
}

// Goes on behind the unread line of that length. The text may end in place of the CR.
// Returns false if there is no line at all.
bool LineReader::PassCr(size_t length) {
  if (length == end_ - begin_) {
    begin_ = end_;
    return length > 0;
  }
  begin_ += length + 1;
  endedInCr_ = true;
  if (begin_ < end_) PassLf();
  return true;
}

// Goes on behind the LF of the last line end. Returns false at the end of the text.
bool LineReader::PassLf() {
  if (!endedInCr_) return true;
  // The LF of a CR LF may be the first byte of the next block.
  if (begin_ == end_ && !Refill()) return false;
  if (buffer_[begin_] == '\n') ++begin_;
  endedInCr_ = false;
  return true;
}

// Reads one more block behind the unread bytes, which must leave room for it and may move. False at
// the end of the source.
bool LineReader::Refill() {
  if (isAtEnd_) return false;
  std::memmove(buffer_.data(), buffer_.data() + begin_, end_ - begin_);
  end_ -= begin_;
  begin_ = 0;
  const size_t count = source_(buffer_.data() + end_, LongestPiece - end_);
  end_ += count;
  isAtEnd_ = count == 0;
  return !isAtEnd_;
}

std::vector<std::string> LinesOf(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const size_t cr = text.find('\r');
    lines.emplace_back(text.substr(0, cr));
    if (cr == std::string_view::npos) break;
    text.remove_prefix(cr + 1);
    if (text.starts_with('\n')) text.remove_prefix(1);
  }
  return lines;
}
