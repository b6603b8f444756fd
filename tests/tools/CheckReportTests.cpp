#include "tools/CheckReport.h"

#include <sstream>

#include "tests/Story.h"

namespace {

using Tools::CheckedFile;
using Format = CheckOptions::Format;

// In the Western code page.
class CheckReportStory : public Story {
 protected:
  // What is printed of a file with these faults.
  std::string Printed(Format format, const CheckedFile& file, const std::string& entry,
                      const Fault& fault) {
    std::ostringstream out;
    const auto report = Tools::MakeReport(format, out, nullptr);
    report->Begin(file);
    report->Tell(file, entry, fault);
    report->End(file, "");
    return out.str();
  }
  std::string Unread(Format format, const std::string& name, const std::string& reason) {
    std::ostringstream out;
    Tools::MakeReport(format, out, nullptr)->CannotLook(name, reason);
    return out.str();
  }

  const CheckedFile track{"tracks/hill.trk", FileKind::Track};
  const CheckedFile package{"cars/H\xFCgel.zip", FileKind::Package};
};

TEST_F(CheckReportStory, APlainLineNamesTheFileAndTheLine) {
  EXPECT_EQ(Printed(Format::Plain, track, "", {3, 1, "No number."}),
            "tracks/hill.trk:3: No number.\n");
  EXPECT_EQ(Printed(Format::Plain, track, "", {0, 1, "No end."}), "tracks/hill.trk: No end.\n");
  EXPECT_EQ(Printed(Format::Plain, package, "a\\b.trk", {3, 1, "No number."}),
            "cars/H\xC3\xBCgel.zip: a\\b.trk:3: No number.\n");
  EXPECT_EQ(Printed(Format::Plain, package, "a", {0, 1, "A link."}),
            "cars/H\xC3\xBCgel.zip: a: A link.\n");
  EXPECT_EQ(Unread(Format::Plain, "x", "Denied.\r\nFile: x"), "x: Denied. File: x\n");
}

TEST_F(CheckReportStory, NothingThatAFileHoldsSpeaksToTheTerminal) {
  std::string hostile("a\x1B[2J\n::error::\x7F");
  hostile += '\0';
  hostile += "\x90\x9D\x81 \x80\xFF";
  EXPECT_EQ(Printed(Format::Plain, track, "", {1, 1, hostile}),
            "tracks/hill.trk:1: a?[2J?::error::????? \xE2\x82\xAC\xC3\xBF\n");
  // Nor does it end the line of an annotation.
  EXPECT_EQ(Printed(Format::GitHub, track, "", {1, 1, "a\r\n::error::b\n\x1B"}),
            "::error file=tracks/hill.trk,line=1::a ::error::b??\n");
}

TEST_F(CheckReportStory, AnAnnotationEscapesWhatWouldEndAProperty) {
  EXPECT_EQ(Printed(Format::GitHub, {"a\\50%,b:c.trk", FileKind::Track}, "", {9, 1, "100%: no"}),
            "::error file=a/50%25%2Cb%3Ac.trk,line=9::100%25: no\n");
  EXPECT_EQ(Printed(Format::GitHub, track, "", {0, 1, "No end."}),
            "::error file=tracks/hill.trk::No end.\n");
  // The line of a file in a package is none of the package's.
  EXPECT_EQ(Printed(Format::GitHub, package, "b.trk", {3, 1, "No."}),
            "::error file=cars/H\xC3\xBCgel.zip::b.trk:3: No.\n");
  EXPECT_EQ(Unread(Format::GitHub, "x.trk", "Gone."), "::error file=x.trk::Gone.\n");
}

TEST_F(CheckReportStory, TheDocumentHoldsTextsAsTheyAre) {
  std::ostringstream out;
  const auto report = Tools::MakeReport(Format::Json, out, nullptr);
  report->Begin(track);
  report->Tell(track, "", {3, -2, "a \"b\"\\ \x1B\r\n\xFC"});
  report->Tell(track, "", {4, 1, "c"});
  report->End(track, "");
  report->Begin(package);
  report->Tell(package, "x\\y.trk", {0, 4, ""});
  report->End(package, "");
  report->Begin({"ok.trk", FileKind::Track});
  report->End({"ok.trk", FileKind::Track}, "fine");
  report->CannotLook("no", "why");
  report->CannotLook("not", "");
  report->Sum({3, 3, 2});
  EXPECT_EQ(
      out.str(),
      "{\"files\": [\n"
      "  {\"file\": \"tracks/hill.trk\", \"kind\": \"track\", \"faults\": [\n"
      "    {\"line\": 3, \"code\": -2, "
      "\"message\": \"a \\\"b\\\"\\\\ \\u001b\\u000d\\u000a\xC3\xBC\"},\n"
      "    {\"line\": 4, \"code\": 1, \"message\": \"c\"}]},\n"
      "  {\"file\": \"cars/H\xC3\xBCgel.zip\", \"kind\": \"package\", \"faults\": [\n"
      "    {\"entry\": \"x\\\\y.trk\", \"line\": 0, \"code\": 4, \"message\": \"\"}]},\n"
      "  {\"file\": \"ok.trk\", \"kind\": \"track\", \"faults\": [], \"verdict\": \"fine\"}], "
      "\"notLookedAt\": [\n"
      "  {\"file\": \"no\", \"reason\": \"why\"},\n"
      "  {\"file\": \"not\", \"reason\": \"\"}], \"checked\": 3, \"faults\": 3}\n");
}

TEST_F(CheckReportStory, ADocumentOfNothingIsOneToo) {
  std::ostringstream out;
  Tools::MakeReport(Format::Json, out, nullptr)->Sum({});
  EXPECT_EQ(out.str(), "{\"files\": [], \"notLookedAt\": [], \"checked\": 0, \"faults\": 0}\n");
}

TEST_F(CheckReportStory, TheSumIsANoteOfThePlainFormat) {
  const auto noted = [](const Tools::CheckCounts& counts) {
    std::ostringstream out;
    std::ostringstream notes;
    Tools::MakeReport(Format::Plain, out, &notes)->Sum(counts);
    EXPECT_EQ(out.str(), "");
    return notes.str();
  };
  EXPECT_EQ(noted({1, 0, 0}), "1 file checked, 0 faults.\n");
  EXPECT_EQ(noted({2, 1, 3}), "2 files checked, 1 fault, 3 not looked at.\n");
}

}  // namespace
