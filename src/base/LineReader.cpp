#include "base/LineReader.h"

#include <cstring>
#include <utility>

#include "base/RuntimeError.h"

namespace {
constexpr size_t BlockSize = 1 << 16;
}

LineReader::LineReader(Source source) : source_(std::move(source)), buffer_(BlockSize) {}

bool LineReader::Next(std::string_view& line) {
  if (endedInCr_) {
    if (begin_ == end_ && !Refill()) return false;
    if (buffer_[begin_] == '\n') ++begin_;
    endedInCr_ = false;
  }
  size_t searched = 0;
  for (;;) {
    const char* unread = buffer_.data() + begin_;
    if (const void* cr = std::memchr(unread + searched, '\r', end_ - begin_ - searched)) {
      line = {unread, static_cast<size_t>(static_cast<const char*>(cr) - unread)};
      if (line.size() > LongestLine) throw RuntimeError(RuntimeError::OutOfMemory);
      begin_ += line.size() + 1;
      endedInCr_ = true;
      return true;
    }
    searched = end_ - begin_;
    if (searched > LongestLine) throw RuntimeError(RuntimeError::OutOfMemory);
    if (!Refill()) break;
  }
  line = {buffer_.data() + begin_, end_ - begin_};
  begin_ = end_;
  return !line.empty();
}

// Reads one more block behind the unread bytes, which may move. False at the end of the source.
bool LineReader::Refill() {
  if (isAtEnd_) return false;
  std::memmove(buffer_.data(), buffer_.data() + begin_, end_ - begin_);
  end_ -= begin_;
  begin_ = 0;
  if (buffer_.size() - end_ < BlockSize / 2) buffer_.resize(buffer_.size() * 2);
  const size_t count = source_(buffer_.data() + end_, buffer_.size() - end_);
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
