#include "tests/tracks/TrackEditorStory.h"
#include "tracks/TrackInWork.h"

namespace {

using Platform::Icon;
using testing::ElementsAre;
using testing::IsEmpty;

class TrackmakerStory : public TrackEditorStory {};

TEST_F(TrackmakerStory, ANewTrackIsChosenInTheGamesFolderOfTracks) {
  StartsTrack("Race.trk");
  EXPECT_EQ(user.LastFileDialog().kind, Platform::FileDialog::Kind::Save);
  EXPECT_EQ(user.LastFileDialog().title, "Save Skidrun2 Track file");
  EXPECT_EQ(user.LastFileDialog().fileType, "SK2 Track files (*.trk)");
  EXPECT_EQ(user.LastFileDialog().initialFolder, Tracks);
  EXPECT_THAT(user.HearsOnOpening(), ElementsAre(EditorTitle, "New Part, button, Alt+P"));
  EXPECT_FALSE(Platform::MainForm().IsVisible());
  EXPECT_THAT(user.Boxes(), IsEmpty());
  EXPECT_THAT(machine.files.Names(Tracks), IsEmpty()) << "nothing is written before a save";
}

TEST_F(TrackmakerStory, CtrlNAndTheChooserLeadToTheEditorToo) {
  user.ChoosesFile("Race.trk");
  user.Presses("Ctrl+N");
  user.Presses("Down");
  user.Presses("Enter");
  EXPECT_EQ(user.SeesWindow(), EditorTitle);
}

TEST_F(TrackmakerStory, WithoutAFileTheEditorIsNotOpened) {
  user.CancelsFileDialog();
  user.ChoosesMenu({"Track", "New"});
  EXPECT_THAT(user.LastBox(),
              Shows(Icon::Information, "Trackmaker aborted. No filename selected.", "Aborted"));
  EXPECT_EQ(user.SeesWindow(), PackTitle);
  EXPECT_EQ(TheTrack().TrackPath, "");
}

TEST_F(TrackmakerStory, WithoutAFileTheChooserGivesWayToTheMainWindow) {
  user.CancelsFileDialog();
  user.Presses("Ctrl+N");
  user.Presses("Down");
  user.Presses("Enter");
  EXPECT_EQ(user.LastBox().title, "Aborted");
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

TEST_F(TrackmakerStory, WithoutTheGameTheUserIsToldAndTheMainWindowStays) {
  machine.registry.Delete(Platform::RegistryRoot::LocalMachine, Platform::RegistryView::Of32Bit,
                          "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\"
                          "{7A3C51E2-94D0-4B6F-A1C8-2E5D90F4B317}_is1",
                          "InstallLocation");
  user.ChoosesMenu({"Track", "New"});
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, testing::HasSubstr("Skidrun2 was not found")));
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

TEST_F(TrackmakerStory, TheExtensionIsAppendedUnlessItIsThereInAnyLetterCase) {
  const std::pair<const char*, const char*> names[] = {
      {"Race", "\\Race.trk"},         {"RACE.TRK", "\\RACE.TRK"},   {"Race.Trk", "\\Race.Trk"},
      {"Race.txt", "\\Race.txt.trk"}, {"Racetrk", "\\Racetrk.trk"}, {"trk", "\\trk.trk"}};
  for (const auto& [chosen, made] : names) {
    StartsTrack(chosen);
    EXPECT_EQ(TheTrack().TrackPath, Tracks + made);
    user.Presses("Escape");
  }
}

TEST_F(TrackmakerStory, TabLeadsThroughAllControlsInReadingOrderAndBack) {
  StartsTrack("Race");
  std::vector<std::string> heard;
  for (int i = 0; i < 5; ++i) {
    heard.push_back(user.Hears());
    user.Presses("Tab");
  }
  EXPECT_THAT(heard, ElementsAre("New Part, button, Alt+P", "Save track, button, Alt+S",
                                 "New Track, button, Alt+T", "Exit, button, Alt+X",
                                 "Track Viewer, list, empty"));
  EXPECT_EQ(user.Hears(), heard.front());
  user.Presses("Shift+Tab");
  EXPECT_EQ(user.Hears(), heard.back());
}

TEST_F(TrackmakerStory, EnterInTheListAndOnTheButtonOpenANewPart) {
  StartsTrack("Race");
  user.Presses("Enter");
  EXPECT_EQ(user.SeesWindow(), PartTitle);
  user.Presses("Escape");
  GoesTo("Track Viewer");
  user.Presses("Enter");
  EXPECT_EQ(user.SeesWindow(), PartTitle);
}

TEST_F(TrackmakerStory, EveryShortcutWorksFromEveryControlAndMovesTheFocusToNewTrackFirst) {
  constexpr int Controls = 5;
  for (int tabs = 0; tabs < Controls; ++tabs) {
    StartsTrack("Race");
    PressesTimes("Tab", tabs);
    user.Presses("Ctrl+Shift+N");
    EXPECT_EQ(user.SeesWindow(), PartTitle);
    user.Presses("Escape");
    EXPECT_EQ(user.Hears(), "New Track, button, Alt+T");

    PressesTimes("Tab", tabs);
    user.ChoosesFile("Other");
    if (tabs > 0) user.AnswersYes();  // to replacing the track of the last round
    user.Presses("Ctrl+N");
    EXPECT_EQ(user.SeesWindow(), EditorTitle);
    EXPECT_EQ(user.Hears(), "New Track, button, Alt+T");
    EXPECT_EQ(TheTrack().TrackPath, Tracks + "\\Other.trk");

    PressesTimes("Tab", tabs);
    user.AnswersNo();
    user.Presses("Alt+C");
    EXPECT_EQ(user.LastBox().title, "Track saved.");
    EXPECT_EQ(user.SeesWindow(), PackTitle);
    StartsTrack("Race");
    EXPECT_EQ(user.Hears(), "New Track, button, Alt+T");
    user.ClosesWindow();
  }
}

TEST_F(TrackmakerStory, OtherModifiersAndOtherKeysDoNothing) {
  StartsTrack("Race");
  for (const char* key : {"N", "Shift+N", "Ctrl+Alt+N", "Alt+N", "Ctrl+Alt+Shift+N", "Ctrl+C", "C",
                          "Alt+Shift+C", "Ctrl+Alt+C", "Ctrl+P", "Ctrl+S"}) {
    user.Presses(key);
    EXPECT_EQ(user.SeesWindow(), EditorTitle) << key;
    EXPECT_EQ(user.Hears(), "New Part, button, Alt+P") << key;
  }
}

TEST_F(TrackmakerStory, TheFileDialogOfCtrlNStandsOverTheMainWindow) {
  StartsTrack("Race");
  user.CancelsFileDialog();
  user.Presses("Ctrl+N");
  EXPECT_EQ(user.LastBox().title, "Aborted");
  EXPECT_EQ(user.LastBox().owner, PackTitle);
  EXPECT_EQ(user.SeesWindow(), PackTitle);
  EXPECT_EQ(TheTrack().TrackPath, Tracks + "\\Race.trk") << "the track stays open";
}

TEST_F(TrackmakerStory, NewTrackKeepsThePartsAndWritesThemToTheFileChosenLast) {
  StartsTrack("Race");
  AddsPart(0, 0, "12000");
  user.ChoosesFile("Other");
  user.Presses("Alt+T");
  AddsPart(5, 1, "7000");
  SavesSunnyTrack();
  EXPECT_EQ(machine.files.Names(Tracks), Names("Other.trk"));
  EXPECT_EQ(TrackNamed("Other.trk"), "0\r\n0\r\n12000\r\n5\r\n1\r\n7000\r\n-1\r\n0\r\n");
}

TEST_F(TrackmakerStory, ExitKeepsTheTrackForALaterSave) {
  StartsTrack("Race");
  AddsPart(3, 1, "7000");
  user.Presses("Escape");
  EXPECT_EQ(user.SeesWindow(), PackTitle);
  EXPECT_EQ(TheTrack().TrackPath, Tracks + "\\Race.trk");
  EXPECT_EQ(TheTrack().TrackText, "3\r\n1\r\n7000\r\n");

  StartsTrack("Race");
  EXPECT_EQ(user.Hears(), "New Track, button, Alt+T") << "Exit moved the focus there";
  GoesTo("Track Viewer");
  EXPECT_EQ(user.Hears(),
            "Track Viewer, list, Hard Left section on Gravel for 7000 units., 1 of 1");
  SavesSunnyTrack();
  EXPECT_EQ(TrackNamed("Race.trk"), "3\r\n1\r\n7000\r\n-1\r\n0\r\n");
}

TEST_F(TrackmakerStory, AltXIsExitToo) {
  StartsTrack("Race");
  user.Presses("Alt+X");
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

TEST_F(TrackmakerStory, ClosingTheWindowShowsTheMainWindowAndForgetsOnlyTheLinesShown) {
  StartsTrack("Race");
  AddsPart(3, 1, "7000");
  user.ClosesWindow();
  EXPECT_EQ(user.SeesWindow(), PackTitle);

  StartsTrack("Race");
  EXPECT_EQ(user.Hears(), "New Part, button, Alt+P") << "a window that is opened anew";
  GoesTo("Track Viewer");
  EXPECT_EQ(user.Hears(), "Track Viewer, list, empty");
  SavesSunnyTrack();
  EXPECT_EQ(TrackNamed("Race.trk"), "3\r\n1\r\n7000\r\n-1\r\n0\r\n") << "the part was kept";
}

TEST_F(TrackmakerStory, AfterASaveTheLinesStayAndTheNextTrackStartsEmpty) {
  StartsTrack("First");
  AddsPart(1, 0, "5000");
  SavesSunnyTrack();
  StartsTrack("Second");
  GoesTo("Track Viewer");
  EXPECT_EQ(user.Hears(),
            "Track Viewer, list, Easy Left section on Asphalt for 5000 units., 1 of 1");
  AddsPart(2, 0, "6000");
  GoesTo("Track Viewer");
  EXPECT_EQ(user.Hears(), "Track Viewer, list, Left section on Asphalt for 6000 units., 2 of 2");
  SavesSunnyTrack();
  EXPECT_EQ(TrackNamed("Second.trk"), "2\r\n0\r\n6000\r\n-1\r\n0\r\n");
}

TEST_F(TrackmakerStory, TheEditorSpeaksTheUsersLanguage) {
  machine.files.Put("C:\\Program Files\\SK2Pack\\sk2pack.lng",
                    "TrackmakerTitle=SK2 Streckenbau\r\nNewPartButton=Neues &Teil\r\n"
                    "NewTrackButton=Neue &Strecke\r\nSaveTrackButton=S&peichern\r\n"
                    "ExitButton=&Ende\r\nTrackViewer=Strecke\r\nHardLeft=Scharf links\r\n"
                    "SectionOn=auf\r\nGravel=Schotter\r\nFor=mit\r\nUnits=Einheiten\r\n");
  StartsTrack("Race");
  EXPECT_THAT(user.HearsOnOpening(), ElementsAre("SK2 Streckenbau", "Neues Teil, button, Alt+T"));
  user.Presses("Alt+T");
  DescribesPart(3, 1, "7000");
  user.Presses("Enter");
  GoesTo("Strecke");
  EXPECT_EQ(user.Hears(), "Strecke, list, Scharf links auf Schotter mit 7000 Einheiten., 1 of 1");
  user.Presses("Alt+E");
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

}  // namespace
