// The track packager.
#include "packaging/TrackPackager.h"

#include "tests/archive/ZipBytes.h"
#include "tests/packaging/PackagingStory.h"
#include "tracks/TrackInWork.h"

namespace {

using Platform::Icon;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

class TrackPackagerStory : public PackagingStory {
 protected:
  const std::string success =
      "Your track has successfully been packaged to the zip file " + Hill + ".zip";

  void ExpectPackaged(const std::string& description) {
    EXPECT_THAT(user.LastBox(), Shows(Icon::Information, success, "Congratulations!"));
    EXPECT_THAT(machine.files.Names(Tracks), ElementsAre("hill.zip"));
    EXPECT_THAT(Packaged::In(Hill + ".zip"),
                ElementsAre(File{"hill.wav", description}, File{"hill.trk", "a track"}));
    EXPECT_EQ(user.SeesWindow(), PackTitle);
  }
};

TEST_F(TrackPackagerStory, ATrackWithADescriptionIsPackagedAtOnce) {
  machine.files.Put(Tracks + "\\HILL.WAV", "a hill");
  PackageTrack();
  EXPECT_THAT(user.Boxes(), SizeIs(1));
  ExpectPackaged("a hill");
  EXPECT_EQ(user.LastFileDialog().title, "Open Skidrun2 Track file");
  EXPECT_EQ(user.LastFileDialog().initialFolder, Tracks);
}

TEST_F(TrackPackagerStory, WithoutATrackTheUserIsTold) {
  user.CancelsFileDialog();
  user.ChoosesMenu({"Track", "Package"});
  EXPECT_THAT(user.LastBox(),
              Shows(Icon::Information, "Track Packager aborted. No file selected.", "Aborted"));
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

TEST_F(TrackPackagerStory, ATrackThatIsNotThereIsToldBeforeAnythingIsAsked) {
  PackageTrack("nowhere.trk");
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, HasSubstr("nowhere.trk"), "Error"));
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

TEST_F(TrackPackagerStory, WithoutADescriptionTheUserIsAskedWhatToDo) {
  PackageTrack();
  EXPECT_EQ(user.SeesWindow(), TrackOptions);
  EXPECT_EQ(user.Hears(), "Please select an option:, list, Open existing .wav file, 1 of 2");
  user.Presses("Down");
  EXPECT_EQ(user.Hears(), "Please select an option:, list, Record new .wav file, 2 of 2");
  user.Presses("Tab");
  EXPECT_EQ(user.Hears(), "OK, button");
  user.Presses("Tab");
  EXPECT_EQ(user.Hears(), "Cancel, button");
  user.Presses("Escape");
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

TEST_F(TrackPackagerStory, CancelAndClosingChangeNothing) {
  for (const char* leave : {"Escape", "Alt+F4"}) {
    PackageTrack();
    user.Presses(leave);
    EXPECT_THAT(user.LastBox(), Shows(Icon::Information, Aborted, "Aborted"));
    EXPECT_EQ(user.SeesWindow(), PackTitle);
  }
  EXPECT_THAT(user.Boxes(), SizeIs(2));
  EXPECT_THAT(machine.files.Names(Tracks), ElementsAre("Hill.TRK"));
}

TEST_F(TrackPackagerStory, ASoundFromElsewhereBecomesTheDescription) {
  machine.files.Put("C:\\Sounds\\Spoken.wav", "spoken");
  PackageTrack();
  user.ChoosesFile("C:\\Sounds\\Spoken.wav");
  user.Presses("Enter");
  EXPECT_EQ(user.LastFileDialog().title, "Open .wav sound");
  EXPECT_EQ(user.LastFileDialog().fileType, "Wave audio sound files (*.wav)");
  ExpectPackaged("spoken");
  EXPECT_EQ(machine.files.Text("C:\\Sounds\\Spoken.wav"), "spoken");
}

TEST_F(TrackPackagerStory, ADescriptionThatCameMeanwhileIsOverwritten) {
  machine.files.Put("C:\\Sounds\\Spoken.wav", "spoken");
  PackageTrack();
  machine.files.Put(Tracks + "\\hill.wav", "another program's");
  user.ChoosesFile("C:\\Sounds\\Spoken.wav");
  user.DoubleClicks("Open existing .wav file");
  ExpectPackaged("spoken");
}

TEST_F(TrackPackagerStory, ADescriptionThatCameMeanwhileCanBeChosenItself) {
  PackageTrack();
  machine.files.Put(Tracks + "\\Hill.wav", "mine");
  user.ChoosesFile(Tracks + "\\Hill.wav");
  user.Presses("Enter");
  ExpectPackaged("mine");
}

TEST_F(TrackPackagerStory, WithoutASoundTheUserIsTold) {
  PackageTrack();
  user.CancelsFileDialog();
  user.Presses("Enter");
  EXPECT_THAT(user.LastBox(),
              Shows(Icon::Critical, "Track packager aborted. No wave file.", "Aborted"));
  EXPECT_EQ(user.SeesWindow(), PackTitle);
  EXPECT_THAT(machine.files.Names(Tracks), ElementsAre("Hill.TRK"));
}

TEST_F(TrackPackagerStory, ASoundThatCannotBeCopiedIsTold) {
  PackageTrack();
  user.ChoosesFile("C:\\nowhere.wav");
  user.Presses("Enter");
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, HasSubstr("C:\\nowhere.wav"), "Error"));
  EXPECT_EQ(user.SeesWindow(), PackTitle);
  EXPECT_THAT(machine.files.Names(Tracks), ElementsAre("Hill.TRK"));
}

TEST_F(TrackPackagerStory, AnArchiveThatIsThereGetsTheFilesBehindItsOwn) {
  machine.files.Put(Tracks + "\\hill.zip",
                    ZipBytes::Bytes({.members = {{.name = "HILL.trk", .contents = "old"},
                                                 {.name = "readme.txt", .contents = "read"}}}));
  machine.files.Put(Tracks + "\\hill.wav", "a hill");
  PackageTrack();
  EXPECT_THAT(Packaged::In(Hill + ".zip"),
              ElementsAre(File{"readme.txt", "read"}, File{"hill.wav", "a hill"},
                          File{"hill.trk", "a track"}));
  EXPECT_THAT(machine.files.Names(Tracks), ElementsAre("hill.zip"));
}

TEST_F(TrackPackagerStory, ADamagedArchiveIsToldAndKeptByteForByte) {
  const std::string damaged = ZipBytes::Of({.name = "a", .contents = "b"}).substr(3);
  machine.files.Put(Tracks + "\\hill.zip", damaged);
  machine.files.Put(Tracks + "\\hill.wav", "a hill");
  PackageTrack();
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, HasSubstr("hill.zip"), "Error"));
  EXPECT_EQ(machine.files.Text(Tracks + "\\hill.zip"), damaged);
  EXPECT_THAT(machine.files.Names(Tracks), ElementsAre("Hill.TRK", "hill.wav", "hill.zip"));
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

// The sound that is chosen as a track is its own description.
TEST_F(TrackPackagerStory, AFileThatIsItsOwnDescriptionIsPackedAndDeletedOnce) {
  machine.files.Put(Tracks + "\\horn.wav", "a horn");
  PackageTrack("horn.wav");
  EXPECT_THAT(Packaged::In("c:\\games\\skidrun2\\tracks\\horn.zip"),
              ElementsAre(File{"horn.wav", "a horn"}));
  EXPECT_FALSE(machine.files.Exists(Tracks + "\\horn.wav"));
}

TEST_F(TrackPackagerStory, AnArchiveIsNotPackagedIntoItself) {
  const std::string archive = ZipBytes::Of({.name = "a", .contents = "b"});
  machine.files.Put(Tracks + "\\Old.zip", archive);
  machine.files.Put(Tracks + "\\old.wav", "old");
  PackageTrack("Old.zip");
  EXPECT_THAT(
      user.LastBox(),
      Shows(Icon::Critical, HasSubstr("A file that is to be packaged has the name of the archive."),
            "Error"));
  EXPECT_EQ(machine.files.Text(Tracks + "\\Old.zip"), archive);
  EXPECT_EQ(machine.files.Text(Tracks + "\\old.wav"), "old");
}

TEST_F(TrackPackagerStory, ATrackThatAnotherProgramHoldsStaysWithAllThatBelongsToIt) {
  machine.files.Put(Tracks + "\\hill.wav", "a hill");
  machine.files.Hold(Tracks + "\\Hill.TRK");
  PackageTrack();
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, HasSubstr("hill.trk"), "Error"));
  EXPECT_THAT(machine.files.Names(Tracks), ElementsAre("Hill.TRK", "hill.wav", "hill.zip"));
  machine.files.Release(Tracks + "\\Hill.TRK");
  PackageTrack();
  ExpectPackaged("a hill");
}

TEST_F(TrackPackagerStory, AReadOnlyTrackIsPackedButNotDeleted) {
  machine.files.Put(Tracks + "\\hill.wav", "a hill");
  machine.files.SetAttributes(Tracks + "\\Hill.TRK", Simulated::ReadOnly);
  PackageTrack();
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, HasSubstr("hill.trk"), "Error"));
  EXPECT_THAT(machine.files.Names(Tracks), ElementsAre("Hill.TRK", "hill.wav", "hill.zip"));
}

TEST_F(TrackPackagerStory, TheUsersKeysDoNothingWhileItPacks) {
  machine.files.Put(Tracks + "\\hill.wav", std::string(1 << 20, 'x'));
  user.DuringLongStep([this] {
    user.Presses("Ctrl+N");
    user.ClosesWindow();
    user.ChoosesMenu({"Track", "Package"});
  });
  PackageTrack();
  EXPECT_THAT(user.Boxes(), SizeIs(1));
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

TEST_F(TrackPackagerStory, WithoutTheGameTheUserIsTold) {
  machine.registry = {};
  user.ChoosesMenu({"Track", "Package"});
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, HasSubstr("Skidrun2 was not found")));
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

// Last three characters, not bytes, where a byte may be half of one.
TEST_F(TrackPackagerStory, ANameWithoutAnExtensionLosesItsLastThreeCharacters) {
  machine.locale.codePage = 932;
  const std::string mountain = "\x8E\x52";
  machine.files.Put(Tracks + "\\a" + mountain + mountain + "b", "a track");
  machine.files.Put(Tracks + "\\awav", "a description");
  PackageTrack("a" + mountain + mountain + "b");
  EXPECT_TRUE(machine.files.Exists(Tracks + "\\azip"));
  EXPECT_THAT(machine.files.Names(Tracks), ElementsAre("azip", "Hill.TRK"));
}

// --- The track in work ---

TEST_F(TrackPackagerStory, TheTrackBecomesTheTrackInWorkUntilItIsPackaged) {
  PackageTrack();
  EXPECT_EQ(TheTrack().TrackPath, Hill + ".trk");
  EXPECT_EQ(TrackPackager::TrackDescription().path, Hill + ".wav");
  user.Presses("Escape");
  machine.files.Put(Tracks + "\\hill.wav", "a hill");
  PackageTrack();
  EXPECT_THAT(TheTrack().TrackPath, IsEmpty());
  EXPECT_THAT(TrackPackager::TrackDescription().path, IsEmpty());
}

TEST_F(TrackPackagerStory, PartsThatWaitInTheEditorGetAFileThatTheUserChooses) {
  const std::string parts = "0\r\n0\r\n7000\r\n";
  // Whether the packaging comes to its end or is left half way.
  for (const bool isPackaged : {false, true}) {
    user.ChoosesFile("lake.trk");
    user.ChoosesMenu({"Track", "New"});
    TheTrack().TrackText = parts;
    user.Presses("Escape");
    if (isPackaged) machine.files.Put(Tracks + "\\hill.wav", "a hill");
    PackageTrack();
    if (!isPackaged) user.Presses("Escape");
    EXPECT_EQ(TheTrack().TrackText, parts);
    EXPECT_EQ(user.SeesWindow(), PackTitle);

    const size_t dialogs = user.FileDialogs().size();
    user.ChoosesFile("sea.trk");
    if (machine.files.Exists(Tracks + "\\sea.trk")) user.AnswersYes();
    user.ChoosesMenu({"Track", "New"});
    EXPECT_THAT(user.FileDialogs(), SizeIs(dialogs + 1));
    user.AnswersYes();
    user.Presses("Alt+S");
    EXPECT_EQ(machine.files.Text(Tracks + "\\sea.trk"), parts + "-1\r\n0\r\n");
    EXPECT_FALSE(machine.files.Exists(Tracks + "\\lake.trk"));
    if (!isPackaged) {
      EXPECT_EQ(machine.files.Text(Tracks + "\\Hill.TRK"), "a track");
    }
  }
  EXPECT_THAT(machine.files.Names(Tracks), ElementsAre("hill.zip", "sea.trk"));
}

}  // namespace
