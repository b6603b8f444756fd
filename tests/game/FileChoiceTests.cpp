// How a tool lets the user choose a file, and asks before another one than the chosen is replaced.
#include "game/FileChoice.h"

#include "base/RuntimeError.h"
#include "game/FileDialogs.h"
#include "tests/app/PackStory.h"

namespace {

using Platform::Icon;
using testing::IsEmpty;

class FileChoiceStory : public PackStory {
 protected:
  FileChoiceStory() { StartPack(); }

  std::string Chooses(std::optional<LangText> title = std::nullopt) {
    return ChooseFile({.dialog = SharedDialogs().OpenWav,
                       .title = title,
                       .folder = Game + "\\vehicles",
                       .noFileText = FixedText("None."),
                       .noFileTitle = FixedText("Nothing"),
                       .noFileIcon = Icon::Critical});
  }

  bool MayWrite(const std::string& path, const std::string& chosen) {
    return MayBeWritten(path, chosen, FixedText("Replace it?"), FixedText("Replace"));
  }
};

TEST_F(FileChoiceStory, GivesThePathThatWasChosen) {
  user.ChoosesFile("Horn.WAV");
  EXPECT_EQ(Chooses(), Game + "\\vehicles\\Horn.WAV");
  EXPECT_EQ(user.LastFileDialog().title, "Open .wav sound");
  EXPECT_EQ(user.LastFileDialog().initialFolder, Game + "\\vehicles");
  EXPECT_THAT(user.Boxes(), IsEmpty());
}

TEST_F(FileChoiceStory, TellsThatNoneWasChosen) {
  user.CancelsFileDialog();
  EXPECT_EQ(Chooses(), "");
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, "None.", "Nothing"));
}

TEST_F(FileChoiceStory, LeavesNothingBehindForTheNext) {
  user.ChoosesFile("horn.wav");
  Chooses(FixedText("Open Horn Sound"));
  EXPECT_EQ(user.LastFileDialog().title, "Open Horn Sound");
  EXPECT_EQ(SharedDialogs().OpenWav.initialFolder, "");
  user.ChoosesFile("horn.wav");
  Chooses();
  EXPECT_EQ(user.LastFileDialog().title, "Open .wav sound");
}

TEST_F(FileChoiceStory, ATitleIsLookedUp) {
  machine.files.Put("C:\\Program Files\\SK2Pack\\sk2pack.lng", "Horn=Hupe\r\n");
  user.ChoosesFile("horn.wav");
  Chooses(LangText{"Horn", "Horn"});
  EXPECT_EQ(user.LastFileDialog().title, "Hupe");
}

TEST_F(FileChoiceStory, WhatIsNotThereMayBeWritten) {
  EXPECT_TRUE(MayWrite(Game + "\\a.trk", Game + "\\a"));
  EXPECT_THAT(user.Boxes(), IsEmpty());
}

TEST_F(FileChoiceStory, TheDialogHasAskedAboutTheNameThatWasChosen) {
  machine.files.Put(Game + "\\a.trk", "0");
  EXPECT_TRUE(MayWrite(Game + "\\a.trk", Game + "\\A.TRK")) << "the same file";
  EXPECT_THAT(user.Boxes(), IsEmpty());
}

TEST_F(FileChoiceStory, TheUserIsAskedAboutAnotherName) {
  machine.files.Put(Game + "\\a.trk", "0");
  user.AnswersNo();
  EXPECT_FALSE(MayWrite(Game + "\\a.trk", Game + "\\a"));
  EXPECT_THAT(user.LastBox(),
              Shows(Icon::Question, "Replace it?\r\n" + Game + "\\a.trk", "Replace"));
  EXPECT_EQ(user.LastBox().buttons, Platform::Buttons::YesNoDefaultNo);
  user.AnswersYes();
  EXPECT_TRUE(MayWrite(Game + "\\a.trk", Game + "\\a"));
}

TEST_F(FileChoiceStory, ANameThatHasBecomeTooLongIsRefused) {
  const std::string longest = "C:\\" + std::string(256, 'x');
  EXPECT_TRUE(MayWrite(longest, "C:\\x"));
  try {
    MayWrite(longest + "x", "C:\\x");
    FAIL() << "a path of 260 characters";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.number(), RuntimeError::PathFileAccess);
    EXPECT_EQ(error.file(), longest + "x");
  }
}

}  // namespace
