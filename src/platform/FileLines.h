// The lines of a file of the game, which may be too large to be held in memory, on the disk or in
// an archive. Reading them is a long step, which lives as long as this object: other programs are
// answered between its blocks.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/LineReader.h"
#include "platform/Files.h"
#include "platform/LongStep.h"

namespace Platform {

class FileLines {
 public:
  // Fails as FileReader does.
  explicit FileLines(const std::string& path);
  // The lines of what a source gives; they fail with whatever that fails with.
  explicit FileLines(LineReader::Source source);
  FileLines(const FileLines&) = delete;
  FileLines& operator=(const FileLines&) = delete;

  // As LineReader's, but a line has no pieces: one of LongestPiece or more is given as ShortLine
  // shortens it. They also fail as FileReader::Read does.
  bool Next(std::string_view& line) {
    if (!lines_.Next(line)) return false;
    if (line.size() >= LineReader::LongestPiece) [[unlikely]]
      line = Shortened(line);
    return true;
  }
  bool Skip() { return lines_.Skip(); }

 private:
  std::string_view Shortened(std::string_view beginning);

  LongStep step_;
  std::optional<FileReader> file_;
  LineReader lines_;
  std::string shortened_;
};

}  // namespace Platform
