// A track drawn at random, with the keyboard alone.
#include "e2e/driver/PackTest.h"

namespace E2e {
namespace {

using RandomTrack = PackTest;

TEST_F(RandomTrack, StreetAdventureOfThreeParts) {
  Pack& pack = StartPack();
  pack.ChooseMenu({"Track", "Random Track"});
  EXPECT_EQ(pack.WaitForFileDialog().title(), "Save Skidrun2 Track file");
  pack.ChooseFile("City");
  EXPECT_EQ(pack.AnswerBox("Y"),
            Question("Adventure", "Do you want your track to be a street adventure?"));

  const std::string prompt = "How many parts do you want for this track?";
  Window question = pack.WaitForWindow("Parts");
  EXPECT_EQ(question.focus(), question.control(prompt));
  pack.Type("three");
  pack.Press("Enter");
  EXPECT_EQ(pack.AnswerBox(), Critical("Error", "Value must be a number."));
  pack.WaitForWindow("Parts");
  pack.Type("3");
  pack.Press("Enter");
  EXPECT_EQ(pack.AnswerBox("Y"),
            Question("Weather", "Do you want your track sunny? If you choose no, it will rain!"));
  EXPECT_EQ(pack.AnswerBox(), Information("Thank you!", "Your new track is created."));
  pack.WaitForMain();

  EXPECT_THAT(NamesIn(gameFolder() + "\\tracks"), testing::Contains("advcity.trk"));
  EXPECT_THAT(ReadFile(gameFolder() + "\\tracks\\advcity.trk"),
              testing::EndsWith("\r\n-1\r\n0\r\n"));
  pack.ChooseMenu({"Track", "Check .trk file"});
  pack.ChooseFile("advcity.trk");
  EXPECT_EQ(pack.AnswerBox(),
            Information("File OK",
                        "11 lines, 3 parts, track file was checked successfully with no errors."));
}

TEST_F(RandomTrack, AdventureIsNotReplacedUnasked) {
  Pack& pack = StartPack();
  const std::string adventure = gameFolder() + "\\tracks\\advcity.trk";
  WriteFile(adventure, "an old track");
  pack.ChooseMenu({"Track", "Random Track"});
  pack.ChooseFile("City");
  pack.AnswerBox("Y");
  const BoxText box = pack.AnswerBox("N");
  EXPECT_EQ(box.title, "Replace track");
  EXPECT_THAT(box.text, testing::HasSubstr("advcity.trk"));
  pack.WaitForMain();
  EXPECT_EQ(ReadFile(adventure), "an old track");
}

TEST_F(RandomTrack, CancelledQuestionLeavesNoFile) {
  Pack& pack = StartPack();
  pack.ChooseMenu({"Track", "Random Track"});
  pack.ChooseFile("City");
  pack.AnswerBox("N");
  pack.WaitForWindow("Parts");
  pack.Press("Escape");
  EXPECT_EQ(pack.AnswerBox(),
            Information("Aborted", "Random Trackmaker aborted. No track parts specified."));
  pack.WaitForMain();
  EXPECT_FALSE(Exists(gameFolder() + "\\tracks\\city.trk"));
}

}  // namespace
}  // namespace E2e
