// A track built part by part, with the keyboard alone.
#include "e2e/driver/Accessibility.h"
#include "e2e/driver/PackTest.h"

namespace E2e {
namespace {

constexpr const char* EditorTitle = "SK2 Trackmaker by Orvane Interactive";
constexpr const char* PartTitle = "New track part";

using TrackEditor = PackTest;

TEST_F(TrackEditor, TwoPartsInTheRain) {
  Pack& pack = StartPack();
  pack.ChooseMenu({"Track", "New"});
  const FileDialogDriver dialog = pack.WaitForFileDialog();
  EXPECT_EQ(dialog.title(), "Save Skidrun2 Track file");
  EXPECT_EQ(dialog.fileType(), "SK2 Track files (*.trk)");
  pack.ChooseFile("Race");
  const Window editor = pack.WaitForWindow(EditorTitle);

  pack.Press("Alt+P");
  pack.WaitForWindow(PartTitle);
  pack.TabTo("Length:");
  pack.Type("12000");
  pack.Press("Enter");
  pack.WaitForWindow(EditorTitle);

  pack.Press("Ctrl+Shift+N");
  const Window part = pack.WaitForWindow(PartTitle);
  EXPECT_EQ(part.control("Length:").text(), "");
  EXPECT_EQ(part.control("Curve:").selectedRow(), "Straight");
  pack.TabTo("Curve:");
  for (int i = 0; i < 5; i++) pack.Press("Down");
  pack.WaitForRow("Easy Right");
  pack.TabTo("Surface:");
  pack.Press("Down");
  pack.WaitForRow("Gravel");
  pack.TabTo("Length:");
  pack.Type("7000");
  pack.Press("Enter");
  pack.WaitForWindow(EditorTitle);
  EXPECT_EQ(editor.control("Track Viewer").rows(),
            (std::vector<std::string>{"Straight section on Asphalt for 12000 units.",
                                      "Easy Right section on Gravel for 7000 units."}));
  EXPECT_THAT(BrokenRules(editor), testing::IsEmpty());
  editor.WaitUntilDrawn();
  SavePictureOf(editor.rectangle(), "Trackmaker with two parts");

  pack.Press("Alt+S");
  EXPECT_EQ(pack.AnswerBox("N"),
            Question("Weather", "Do you want your track sunny? If you choose no, it will rain!"));
  EXPECT_EQ(pack.AnswerBox(),
            Information("Track saved.", "Your new track has been successfully written and saved."));
  pack.WaitForMain();
  EXPECT_EQ(ReadFile(gameFolder() + "\\tracks\\Race.trk"),
            "0\r\n0\r\n12000\r\n5\r\n1\r\n7000\r\n-1\r\n1\r\n");
}

TEST_F(TrackEditor, LengthThatCannotBeIsRefused) {
  Pack& pack = StartPack();
  pack.ChooseMenu({"Track", "New"});
  pack.ChooseFile("Race.TRK");
  pack.WaitForWindow(EditorTitle);
  pack.Press("Alt+P");
  pack.WaitForWindow(PartTitle);

  pack.TabTo("Length:");
  pack.Type("abc");
  pack.Press("Enter");
  EXPECT_EQ(pack.AnswerBox(), Critical("Error", "Length must be a number."));
  pack.WaitForWindow(PartTitle);
  pack.Type("4999");  // replaces what was refused
  pack.Press("Enter");
  EXPECT_EQ(pack.AnswerBox(), Critical("Error", "Length must be 5000 or more."));

  pack.WaitForWindow(PartTitle);
  pack.Press("Escape");
  const Window editor = pack.WaitForWindow(EditorTitle);
  EXPECT_THAT(editor.control("Track Viewer").rows(), testing::IsEmpty());
  pack.Press("Escape");
  pack.WaitForMain();
  EXPECT_FALSE(Exists(gameFolder() + "\\tracks\\Race.TRK"));
}

TEST_F(TrackEditor, ShortcutsWorkFromTheListAndMoveTheFocusToNewTrack) {
  Pack& pack = StartPack();
  pack.ChooseMenu({"Track", "New"});
  pack.ChooseFile("Race");
  const Window editor = pack.WaitForWindow(EditorTitle);
  EXPECT_EQ(editor.focus(), editor.control("New Part"));

  pack.TabTo("Track Viewer");
  pack.Press("Ctrl+Shift+N");
  pack.WaitForWindow(PartTitle);
  pack.Press("Alt+F4");
  pack.WaitForWindow(EditorTitle);
  EXPECT_EQ(editor.focus(), editor.control("New Track"));

  pack.TabTo("Track Viewer");
  pack.Press("Ctrl+N");
  pack.ChooseFile("Other");
  pack.WaitForWindow(EditorTitle);
  EXPECT_EQ(editor.focus(), editor.control("New Track"));

  pack.TabTo("Track Viewer");
  pack.Press("Alt+C");
  pack.AnswerBox("Y");
  EXPECT_EQ(pack.AnswerBox().title, "Track saved.");
  pack.WaitForMain();
  EXPECT_EQ(ReadFile(gameFolder() + "\\tracks\\Other.trk"), "-1\r\n0\r\n");
}

TEST_F(TrackEditor, NoTrackIsReplacedUnasked) {
  Pack& pack = StartPack();
  const std::string lap = gameFolder() + "\\tracks\\Lap 1.5.trk";
  WriteFile(lap, "an old track");

  // The name as it is in the folder: the dialog asks, and stays.
  pack.ChooseMenu({"Track", "New"});
  pack.WaitForFileDialog().Choose("Lap 1.5.trk");
  EXPECT_EQ(pack.AnswerBox("N").buttons, (std::vector<std::string>{"Yes", "No"}));
  pack.CancelFileDialog();
  EXPECT_EQ(pack.AnswerBox().title, "Aborted");

  // A name that becomes that one: the pack asks.
  pack.ChooseMenu({"Track", "New"});
  pack.ChooseFile("Lap 1.5");
  EXPECT_EQ(
      pack.AnswerBox("N"),
      Question("Replace track", "This track exists already. Do you want to replace it?\r\n" + lap));
  pack.WaitForMain();
  EXPECT_EQ(ReadFile(lap), "an old track");

  pack.ChooseMenu({"Track", "New"});
  pack.ChooseFile("Lap 1.5");
  pack.AnswerBox("Y");
  pack.WaitForWindow(EditorTitle);
}

TEST_F(TrackEditor, TrackThatCannotBeWrittenIsSavedElsewhere) {
  Pack& pack = StartPack();
  const std::string race = gameFolder() + "\\tracks\\Race.trk";
  pack.ChooseMenu({"Track", "New"});
  pack.ChooseFile("Race");
  pack.WaitForWindow(EditorTitle);
  // The file comes after the choice: the pack would ask before one that is there is replaced.
  WriteFile(race, "an old track");
  SetFileAttributesA(race.c_str(), FILE_ATTRIBUTE_READONLY);
  pack.Press("Alt+P");
  pack.WaitForWindow(PartTitle);
  pack.Type("5000");
  pack.Press("Enter");
  const Window editor = pack.WaitForWindow(EditorTitle);

  pack.Press("Alt+S");
  pack.AnswerBox("Y");
  const BoxText told = pack.AnswerBox();
  EXPECT_EQ(told.title, "Error");
  EXPECT_THAT(told.text, testing::HasSubstr("Race.trk"));
  pack.WaitForWindow(EditorTitle);
  EXPECT_EQ(editor.focus(), editor.control("Save track"));
  EXPECT_EQ(ReadFile(race), "an old track");
  SetFileAttributesA(race.c_str(), FILE_ATTRIBUTE_NORMAL);

  pack.Press("Alt+T");
  pack.ChooseFile("Other");
  pack.WaitForWindow(EditorTitle);
  pack.Press("Alt+S");
  pack.AnswerBox("N");
  EXPECT_EQ(pack.AnswerBox().title, "Track saved.");
  pack.WaitForMain();
  EXPECT_EQ(ReadFile(gameFolder() + "\\tracks\\Other.trk"), "0\r\n0\r\n5000\r\n-1\r\n1\r\n");
}

}  // namespace
}  // namespace E2e
