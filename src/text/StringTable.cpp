#include "text/StringTable.h"

#include <exception>
#include <optional>
#include <string_view>
#include <vector>

#include "base/KeyValue.h"
#include "base/PerRun.h"
#include "base/Text.h"
#include "platform/Executable.h"
#include "platform/Files.h"

namespace {

// The lines of the language file as they were at the last look.
class LanguageFile {
 public:
  // Reads the file again if it has changed. False if it is too large to be a language file. Fails
  // as Platform::ReadWholeFile does.
  bool Refresh();
  std::optional<std::string> Find(const std::string& key, int flag) const;
  // Fails as Platform::AppendToFile does.
  void Append(const std::string& entry);

  // See SpeakOnlyFrom.
  void ReadOnlyFrom(const std::string& path) {
    path_ = path;
    isKnown_ = false;
    isOnlyRead_ = true;
  }
  bool isOnlyRead() const { return isOnlyRead_; }

 private:
  std::string path_ = Platform::PathBesideProgram(".lng");
  bool isOnlyRead_ = false;
  bool isKnown_ = false;                      // the rest is what the file holds
  std::optional<Platform::FileStamp> stamp_;  // nothing while there is no file
  std::vector<std::string> lines_;
  bool endsInOpenLine_ = false;  // the last line lacks its line end
};

// One spelling after the other, over the whole text. Any further ones stay as they are.
std::string WithSemicolons(std::string text) {
  for (const char* escape : {"{sc}", "{Sc}", "{sC}", "{SC}"}) {
    text = Text::Replace(text, escape, ";");
  }
  return text;
}

bool LanguageFile::Refresh() {
  // The stamp is taken before the file is read: a change in between is seen at the next look.
  const auto stamp = Platform::StampOf(path_);
  if (isKnown_ && stamp == stamp_) return true;
  // Until all has gone well: a file that fails half way is read again at the next look.
  isKnown_ = false;
  lines_.clear();
  endsInOpenLine_ = false;
  if (stamp && stamp->size > LargestLanguageFile) return false;
  const std::optional<std::string> bytes = Platform::ReadWholeFile(path_);
  if (bytes && !bytes->empty()) {
    // Translators' editors end lines in CR LF, CR or LF; the empty lines that this makes of CR LF
    // are skipped with all others.
    std::string line;
    for (const char c : *bytes) {
      if (c != '\r' && c != '\n') {
        line += c;
      } else if (!line.empty()) {
        lines_.push_back(std::move(line));
        line.clear();
      }
    }
    endsInOpenLine_ = !line.empty();
    if (endsInOpenLine_) lines_.push_back(std::move(line));
  }
  stamp_ = stamp;
  isKnown_ = true;
  return true;
}

std::optional<std::string> LanguageFile::Find(const std::string& key, int flag) const {
  std::optional<std::string> found;
  for (const std::string& whole : lines_) {
    const std::string_view line = flag == WithComments ? LineWithoutComment(whole) : whole;
    // No end at the first one that is found: translators add lines at the end, and the last counts.
    if (KeyValue::HasKey(line, key)) found = KeyValue::Split(line)->value;
  }
  return found;
}

void LanguageFile::Append(const std::string& entry) {
  // A translator's last line may lack its end: the entry must not become a part of that text.
  Platform::AppendToFile(path_, (endsInOpenLine_ ? "\r\n" : "") + entry + "\r\n");
  isKnown_ = false;
}

}  // namespace

std::string_view LineWithoutComment(std::string_view line) {
  const size_t comment = line.find(';');
  if (comment == std::string_view::npos) return line;
  return Text::Trim(line.substr(0, comment));
}

std::string GetLangString(const std::string& key, const std::string& english, int flag) {
  try {
    auto& file = PerRun<LanguageFile>();
    // A file that exists but cannot be read, because an editor holds it, may have the key:
    // appending the default would replace the translation, since the last line of a key counts.
    if (!file.Refresh()) return english;
    if (const auto text = file.Find(key, flag)) return WithSemicolons(*text);
    if (!file.isOnlyRead()) file.Append(KeyValue::Line(key, english));
  } catch (const std::exception&) {
    // A file that cannot be read or written, or too little memory for it, is no reason to stop.
  }
  return english;
}

std::string GetLangString(const LangText& text) {
  if (!text.key) return text.english;
  return GetLangString(text.key, text.english, WithComments);
}

void SpeakOnlyFrom(const std::string& path) {
  PerRun<LanguageFile>().ReadOnlyFrom(path);
}
