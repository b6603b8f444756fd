#include "archive/ByteSource.h"

#include <algorithm>

namespace Archive {

FileSource::FileSource(const std::string& path) : path_(path), file_(path), size_(file_.Size()) {}

size_t FileSource::Read(uint64_t place, char* buffer, size_t size) {
  if (place != place_) file_.Seek(place);
  place_ = place;
  const size_t count = file_.Read(buffer, size);
  place_ += count;
  return count;
}

std::optional<std::string_view> Window::At(uint64_t place, size_t size) {
  if (place > source_.size() || size > source_.size() - place) return std::nullopt;
  const bool isHeld = place >= start_ && place - start_ <= bytes_.size() &&
                      size <= bytes_.size() - static_cast<size_t>(place - start_);
  if (!isHeld) {
    start_ = place;
    const uint64_t left = source_.size() - place;
    bytes_.resize(static_cast<size_t>(std::min<uint64_t>(std::max(size, ahead_), left)));
    size_t held = 0;
    while (held < bytes_.size()) {
      const size_t count = source_.Read(place + held, bytes_.data() + held, bytes_.size() - held);
      if (count == 0) break;
      held += count;
    }
    bytes_.resize(held);
    if (size > held) return std::nullopt;
  }
  return std::string_view(bytes_).substr(static_cast<size_t>(place - start_), size);
}

}  // namespace Archive
