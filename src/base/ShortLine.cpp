#include "base/ShortLine.h"

void ShortLine::Append(std::string_view piece) {
  for (const char c : piece) Append(c);
}

void ShortLine::Append(char c) {
  if (c == '=') {
    // Fields behind the last one become a part of it, as no format looks at them.
    if (fields_ == MostFields) return;
    ++fields_;
    text_.append(RestOfField()) += c;
    start_ = text_.size();
    bytes_.reset();
    tail_.clear();
    hasOthers_ = false;
    run_ = 0;
    return;
  }
  run_ = run_ > 0 && c == last_ ? run_ + 1 : 1;
  last_ = c;
  // Zeros, blanks and other digits in such numbers say the same, however many: see the header.
  if (run_ > LongestRun) return;
  if (text_.size() - start_ < LongestField) {
    text_ += c;
    bytes_.set(static_cast<unsigned char>(c));
    return;
  }
  tail_.push_back(c);
  if (tail_.size() <= LongestTail) return;
  hasOthers_ = hasOthers_ || !bytes_.test(static_cast<unsigned char>(tail_.front()));
  tail_.pop_front();
}

// What stands behind the beginning of the last field.
std::string ShortLine::RestOfField() const {
  // A "?" keeps what was no number from becoming one by what was left out.
  return (hasOthers_ ? "?" : "") + std::string(tail_.begin(), tail_.end());
}
