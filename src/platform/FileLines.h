// The lines of a file that may be too large to be held in memory. Reading them is a long step:
// other programs are answered between its blocks.
#pragma once

#include <string>
#include <string_view>

#include "base/LineReader.h"
#include "platform/Files.h"
#include "platform/LongStep.h"

namespace Platform {

class FileLines {
 public:
  // Fails as FileReader does.
  explicit FileLines(const std::string& path)
      : file_(path), lines_([this](char* buffer, size_t size) {
          AnswerMessages();
          return file_.Read(buffer, size);
        }) {}
  FileLines(const FileLines&) = delete;
  FileLines& operator=(const FileLines&) = delete;

  // As LineReader's. They also fail as FileReader::Read does.
  bool Next(std::string_view& line) { return lines_.Next(line); }
  bool Skip() { return lines_.Skip(); }

 private:
  FileReader file_;
  LineReader lines_;
};

}  // namespace Platform
