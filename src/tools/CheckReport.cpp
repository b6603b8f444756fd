#include "tools/CheckReport.h"

#include <algorithm>

#include "base/Text.h"
#include "base/Utf8.h"
#include "platform/Characters.h"

namespace Tools {

namespace {

// A text as one line of UTF-8, in which nothing speaks to the terminal that shows it.
std::string OneLine(const std::string& text) {
  std::string shown;
  std::string utf8 = Platform::ToUtf8(Text::Replace(text, Text::LineEnd, " "));
  for (std::string_view rest = utf8; !rest.empty();) {
    const size_t length = std::max<size_t>(Utf8::CharacterLength(rest), 1);
    const char32_t character =
        length == 1 ? static_cast<unsigned char>(rest[0]) : Utf8::FirstCharacter(rest);
    const bool isControl = character < ' ' || (character >= 0x7F && character < 0xA0);
    shown.append(isControl ? std::string_view("?") : rest.substr(0, length));
    rest.remove_prefix(length);
  }
  return shown;
}

std::string Counted(int64_t count, const char* one, const char* several) {
  return std::to_string(count) + " " + (count == 1 ? one : several);
}

// Where in the file a fault is, as "LINE: "; nothing for the file as a whole.
std::string PlaceOf(const Fault& fault) {
  return fault.line > 0 ? std::to_string(fault.line) + ": " : " ";
}

class PlainReport final : public CheckReport {
 public:
  PlainReport(std::ostream& out, std::ostream* notes) : out_(out), notes_(notes) {}

  void Begin(const CheckedFile&) override {}
  void Tell(const CheckedFile& file, const std::string& entry, const Fault& fault) override {
    out_ << OneLine(file.name) << ":";
    if (!entry.empty()) out_ << " " << OneLine(entry) << ":";
    out_ << PlaceOf(fault) << OneLine(fault.message) << "\n";
  }
  void End(const CheckedFile& file, const std::string& verdict) override {
    if (!verdict.empty()) out_ << OneLine(file.name) << ": " << OneLine(verdict) << "\n";
  }
  void CannotLook(const std::string& name, const std::string& reason) override {
    out_ << OneLine(name) << ": " << OneLine(reason) << "\n";
  }
  void Sum(const CheckCounts& counts) override {
    if (!notes_) return;
    *notes_ << Counted(counts.files, "file", "files") << " checked, "
            << Counted(counts.faults, "fault", "faults");
    if (counts.unread > 0) *notes_ << ", " << counts.unread << " not looked at";
    *notes_ << ".\n";
  }

 private:
  std::ostream& out_;
  std::ostream* notes_;
};

// Workflow commands: one line each, in which what would end a line or a property is escaped.
class GitHubReport final : public CheckReport {
 public:
  explicit GitHubReport(std::ostream& out) : out_(out) {}

  void Begin(const CheckedFile&) override {}
  void Tell(const CheckedFile& file, const std::string& entry, const Fault& fault) override {
    const bool isInPackage = !entry.empty();
    // The site knows the lines of the package's own file only.
    Write(file.name, isInPackage ? 0 : fault.line,
          isInPackage ? entry + ":" + PlaceOf(fault) + fault.message : fault.message);
  }
  void End(const CheckedFile&, const std::string&) override {}
  void CannotLook(const std::string& name, const std::string& reason) override {
    Write(name, 0, reason);
  }
  void Sum(const CheckCounts&) override {}

 private:
  static std::string Data(const std::string& text) {
    return Text::Replace(OneLine(text), "%", "%25");
  }
  static std::string Property(const std::string& text) {
    return Text::Replace(Text::Replace(Data(text), ":", "%3A"), ",", "%2C");
  }
  void Write(const std::string& name, int64_t line, const std::string& message) {
    // It looks for the file by its path with "/".
    out_ << "::error file=" << Property(Text::Replace(name, "\\", "/"));
    if (line > 0) out_ << ",line=" << line;
    out_ << "::" << Data(message) << "\n";
  }

  std::ostream& out_;
};

// One object: {"files": [...], "notLookedAt": [...], "checked": N, "faults": N}.
class JsonReport final : public CheckReport {
 public:
  explicit JsonReport(std::ostream& out) : out_(out) { out_ << "{\"files\": ["; }

  void Begin(const CheckedFile& file) override {
    out_ << (hasFiles_ ? ",\n" : "\n") << "  {\"file\": " << Quoted(file.name) << ", \"kind\": \""
         << NameOf(file.kind) << "\", \"faults\": [";
    hasFiles_ = true;
    hasFaults_ = false;
  }
  void Tell(const CheckedFile&, const std::string& entry, const Fault& fault) override {
    out_ << (hasFaults_ ? ",\n" : "\n") << "    {";
    if (!entry.empty()) out_ << "\"entry\": " << Quoted(entry) << ", ";
    out_ << "\"line\": " << fault.line << ", \"code\": " << fault.code
         << ", \"message\": " << Quoted(fault.message) << "}";
    hasFaults_ = true;
  }
  void End(const CheckedFile&, const std::string& verdict) override {
    out_ << "]";
    if (!verdict.empty()) out_ << ", \"verdict\": " << Quoted(verdict);
    out_ << "}";
  }
  void CannotLook(const std::string& name, const std::string& reason) override {
    unread_ += std::string(unread_.empty() ? "\n" : ",\n") + "  {\"file\": " + Quoted(name) +
               ", \"reason\": " + Quoted(reason) + "}";
  }
  void Sum(const CheckCounts& counts) override {
    out_ << "], \"notLookedAt\": [" << unread_ << "], \"checked\": " << counts.files
         << ", \"faults\": " << counts.faults << "}\n";
  }

 private:
  static std::string Quoted(const std::string& text) {
    static constexpr char Digits[] = "0123456789abcdef";
    std::string quoted = "\"";
    for (const char c : Platform::ToUtf8(text)) {
      const auto byte = static_cast<unsigned char>(c);
      if (c == '"' || c == '\\') {
        quoted.append("\\") += c;
      } else if (byte < ' ') {
        quoted.append("\\u00").append({Digits[byte >> 4], Digits[byte & 15]});
      } else {
        quoted += c;
      }
    }
    return quoted + "\"";
  }

  std::ostream& out_;
  std::string unread_;
  bool hasFiles_ = false;
  bool hasFaults_ = false;
};

}  // namespace

std::unique_ptr<CheckReport> MakeReport(CheckOptions::Format format, std::ostream& out,
                                        std::ostream* notes) {
  switch (format) {
    case CheckOptions::Format::GitHub: return std::make_unique<GitHubReport>(out);
    case CheckOptions::Format::Json: return std::make_unique<JsonReport>(out);
    case CheckOptions::Format::Plain: break;
  }
  return std::make_unique<PlainReport>(out, notes);
}

}  // namespace Tools
