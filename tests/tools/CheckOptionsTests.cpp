#include "tools/CheckOptions.h"

#include "tests/Story.h"

namespace {

using Format = CheckOptions::Format;

CheckOptions Parsed(const std::vector<std::string>& arguments) {
  std::string fault;
  const auto options = ParseCheckOptions(arguments, fault);
  EXPECT_TRUE(options) << fault;
  return options.value_or(CheckOptions{});
}

std::string FaultOf(const std::vector<std::string>& arguments) {
  std::string fault;
  EXPECT_FALSE(ParseCheckOptions(arguments, fault));
  return fault;
}

TEST(CheckOptions, FilesAloneAreCheckedPlainly) {
  const CheckOptions options = Parsed({"a.trk", "folder"});
  EXPECT_EQ(options.paths, (std::vector<std::string>{"a.trk", "folder"}));
  EXPECT_EQ(options.format, Format::Plain);
  EXPECT_EQ(options.language, "");
  EXPECT_FALSE(options.kind || options.isFirstOnly || options.isQuiet || options.wantsHelp);
}

TEST(CheckOptions, OptionsStandAnywhere) {
  const CheckOptions options = Parsed({"a.trk", "--first", "b.trk", "-q", "--json"});
  EXPECT_EQ(options.paths, (std::vector<std::string>{"a.trk", "b.trk"}));
  EXPECT_TRUE(options.isFirstOnly);
  EXPECT_TRUE(options.isQuiet);
  EXPECT_EQ(options.format, Format::Json);
}

TEST(CheckOptions, AValueStandsBehindAnEqualsSignOrIsTheNextArgument) {
  EXPECT_EQ(Parsed({"--format=github", "a"}).format, Format::GitHub);
  EXPECT_EQ(Parsed({"--format", "json", "a"}).format, Format::Json);
  EXPECT_EQ(Parsed({"--language=de.lng", "a"}).language, "de.lng");
  const CheckOptions options = Parsed({"--language", "de.lng", "--as", "track", "a"});
  EXPECT_EQ(options.language, "de.lng");
  EXPECT_EQ(options.kind, FileKind::Track);
  EXPECT_EQ(options.paths, std::vector<std::string>{"a"});
}

TEST(CheckOptions, BehindTwoDashesEverythingIsAFile) {
  const CheckOptions options = Parsed({"-q", "--", "--first", "-x.trk", "--"});
  EXPECT_EQ(options.paths, (std::vector<std::string>{"--first", "-x.trk", "--"}));
  EXPECT_FALSE(options.isFirstOnly);
}

TEST(CheckOptions, HelpAndVersionNeedNoFile) {
  EXPECT_TRUE(Parsed({"-h"}).wantsHelp);
  EXPECT_TRUE(Parsed({"--help"}).wantsHelp);
  EXPECT_TRUE(Parsed({"--version"}).wantsVersion);
}

TEST(CheckOptions, WhatCannotBeMeantIsTold) {
  EXPECT_EQ(FaultOf({}), "Nothing is named that could be checked.");
  EXPECT_EQ(FaultOf({
                "--",
            }),
            "Nothing is named that could be checked.");
  EXPECT_EQ(FaultOf({"--frist", "a"}), "There is no option --frist.");
  EXPECT_EQ(FaultOf({"-", "a"}), "There is no option -.");
  EXPECT_EQ(FaultOf({"--formatjson", "a"}), "There is no option --formatjson.");
  EXPECT_EQ(FaultOf({"--format=xml", "a"}), "The format is plain, github or json.");
  EXPECT_EQ(FaultOf({"a", "--format"}), "The format is plain, github or json.");
  EXPECT_EQ(FaultOf({"--as=car", "a"}),
            "What --as names is vehicle, track, package, archive, language or records.");
  EXPECT_EQ(FaultOf({"--language="}), "Behind --language stands a language file.");
  EXPECT_EQ(FaultOf({"a", "--language"}), "Behind --language stands a language file.");
}

TEST(CheckOptions, TheHelpNamesEveryOptionAndKind) {
  const std::string help = CheckHelp();
  for (const char* word :
       {"--first", "--format", "--json", "--language", "--as", "--quiet", "-q", "--version",
        "--help", "-h", ".vhc", ".trk", ".zip", ".lng", "highscore.cfg", "exit status"}) {
    EXPECT_THAT(help, testing::HasSubstr(word));
  }
  for (const FileKind kind : {FileKind::Vehicle, FileKind::Track, FileKind::Records,
                              FileKind::Language, FileKind::Package, FileKind::Archive}) {
    EXPECT_THAT(help, testing::HasSubstr(NameOf(kind)));
    EXPECT_EQ(KindNamed(NameOf(kind)), kind);
  }
  for (size_t at = 0; at < help.size();) {
    const size_t end = help.find('\n', at);
    EXPECT_LE(end - at, 100u) << help.substr(at, end - at);
    at = end + 1;
  }
}

class FileKinds : public Story {};

TEST_F(FileKinds, ANameTellsTheKind) {
  EXPECT_EQ(KindOf("C:\\a\\Hill.TRK"), FileKind::Track);
  EXPECT_EQ(KindOf("rocket.vhc"), FileKind::Vehicle);
  EXPECT_EQ(KindOf("x.Zip"), FileKind::Package);
  EXPECT_EQ(KindOf("de.lng"), FileKind::Language);
  EXPECT_EQ(KindOf("a\\HighScore.cfg"), FileKind::Records);
  EXPECT_EQ(KindOf("Skidrun.cfg"), std::nullopt);
  EXPECT_EQ(KindOf("a.trk\\readme.txt"), std::nullopt);
  EXPECT_EQ(KindOf(""), std::nullopt);
}

}  // namespace
