#include "platform/FileLines.h"

#include <utility>

#include "base/ShortLine.h"

namespace Platform {

FileLines::FileLines(const std::string& path)
    : file_(path), lines_([this](char* buffer, size_t size) {
        step_.AnswerOthers();
        return file_->Read(buffer, size);
      }) {}

FileLines::FileLines(LineReader::Source source)
    : lines_([this, source = std::move(source)](char* buffer, size_t size) {
        step_.AnswerOthers();
        return source(buffer, size);
      }) {}

// The line that begins so, shortened.
std::string_view FileLines::Shortened(std::string_view beginning) {
  ShortLine line;
  line.Append(beginning);
  for (std::string_view piece; lines_.NextPiece(piece);) line.Append(piece);
  shortened_ = line.text();
  return shortened_;
}

}  // namespace Platform
