// A vehicle is begun, filled in and saved.
#include "platform/Files.h"
#include "tests/vehicles/VehicleEditorStory.h"
#include "vehicles/VehicleValues.h"

namespace {

using Platform::Icon;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class NewVehicleStory : public VehicleEditorStory {};

// --- Beginning ---

TEST_F(NewVehicleStory, TheFileIsChosenInTheGamesFolderOfVehicles) {
  StartsVehicle();
  EXPECT_EQ(user.LastFileDialog().kind, Platform::FileDialog::Kind::Save);
  EXPECT_EQ(user.LastFileDialog().title, "Save Skidrun2 Vehicle file");
  EXPECT_EQ(user.LastFileDialog().fileType, "SK2 Vehicle files (*.vhc)");
  EXPECT_EQ(user.LastFileDialog().initialFolder, Vehicles);
  EXPECT_EQ(TheVehicle().VehicleFilePath, Rocket);
  EXPECT_EQ(TheVehicle().VehicleFolder(), Vehicles);
  EXPECT_FALSE(Platform::MainForm().IsVisible());
  EXPECT_THAT(machine.files.Names(Vehicles), IsEmpty()) << "nothing is written before a save";
}

TEST_F(NewVehicleStory, TheEditorOpensOnItsFirstRow) {
  StartsVehicle();
  EXPECT_THAT(user.HearsOnOpening(),
              ElementsAre(EditorTitle, "Select an item:, list, Engine Sound: not set, 1 of 14"));
}

TEST_F(NewVehicleStory, TheChooserLeadsToTheEditorToo) {
  user.ChoosesFile("rocket");
  user.Presses("Ctrl+N");
  user.Presses("Enter");
  EXPECT_EQ(user.SeesWindow(), EditorTitle);
}

TEST_F(NewVehicleStory, WithoutAFileTheEditorIsNotOpened) {
  user.CancelsFileDialog();
  user.ChoosesMenu({"Vehicle", "New"});
  EXPECT_THAT(user.Boxes(),
              ElementsAre(Shows(Icon::Critical, "No filename specified.", "Save error")));
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

TEST_F(NewVehicleStory, WithoutAFileTheChooserGivesWayToTheMainWindow) {
  user.CancelsFileDialog();
  user.Presses("Ctrl+N");
  user.Presses("Enter");
  EXPECT_EQ(user.LastBox().title, "Save error");
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

TEST_F(NewVehicleStory, ANameWithoutAnExtensionGetsOne) {
  StartsVehicle("fast.car");
  EXPECT_EQ(TheVehicle().VehicleFilePath, Vehicles + "\\fast.car");
  user.Presses("Escape");
  StartsVehicle("fast");
  EXPECT_EQ(TheVehicle().VehicleFilePath, Vehicles + "\\fast.vhc");
}

// --- The rows ---

TEST_F(NewVehicleStory, EveryRowSaysWhatItIsAndThatItIsNotSet) {
  StartsVehicle();
  const char* const labels[] = {"Engine Sound: ",
                                "Throttle Sound: ",
                                "Ignition Sound: ",
                                "Horn Sound: ",
                                "Acceleration: ",
                                "Deceleration: ",
                                "Top Speed: ",
                                "Engine Idle Frequency: ",
                                "Engine Top Speed Frequency: ",
                                "Engine Gear Shift Frequency: ",
                                "Number of Gears: ",
                                "Steering: ",
                                "Steering Factor: ",
                                "Wipers: "};
  for (int row = 0; row < RowCount; ++row) {
    EXPECT_EQ(RowHeard(row), std::string(labels[row]) + "not set");
  }
}

TEST_F(NewVehicleStory, TabLeadsThroughAllControlsInReadingOrder) {
  StartsVehicle();
  std::vector<std::string> heard;
  for (int i = 0; i < 5; ++i) {
    heard.push_back(user.Hears());
    user.Presses("Tab");
  }
  EXPECT_THAT(heard, ElementsAre("Select an item:, list, Engine Sound: not set, 1 of 14",
                                 "Set, button, Alt+S", "Save, button, Alt+A",
                                 "Test Sound, button, Alt+T", "Cancel, button"));
}

TEST_F(NewVehicleStory, AfterASetTheUserIsOnTheFirstRowOfTheList) {
  StartsVehicle();
  SetsNumber(TopSpeed, "250");
  EXPECT_EQ(user.Hears(), "Select an item:, list, Engine Sound: not set, 1 of 14");
  EXPECT_EQ(RowHeard(TopSpeed), "Top Speed: 250");
}

TEST_F(NewVehicleStory, AnIndexOfNoVariableAsksNothing) {
  StartsVehicle();
  const std::string before = TheVehicle().VehicleData;
  for (const int index : {-1, 14, 1000}) EXPECT_EQ(SetVehicleValue(index), SetResult::Unchanged);
  EXPECT_EQ(TheVehicle().VehicleData, before);
  EXPECT_THAT(user.Boxes(), IsEmpty());
}

// --- Sounds ---

TEST_F(NewVehicleStory, ASoundOfTheGameIsChosenByItsName) {
  StartsVehicle();
  user.AnswersYes();
  Sets(Horn);
  EXPECT_THAT(user.LastBox(), Shows(Icon::Question, "Would you like to use an internal game sound?",
                                    "Sound selection"));
  EXPECT_THAT(user.HearsOnOpening(), ElementsAre(SoundsTitle, "Sounds:, list, car1, 1 of 8"));
  user.Presses("End");
  user.Presses("Enter");
  EXPECT_EQ(user.SeesWindow(), EditorTitle);
  EXPECT_EQ(user.Hears(), "Select an item:, list, Engine Sound: not set, 1 of 14");
  EXPECT_EQ(RowHeard(Horn), "Horn Sound: cycle2");
}

TEST_F(NewVehicleStory, EachSoundVariableIsOfferedTheNamesThatItCanHave) {
  StartsVehicle();
  const std::vector<std::string> all{"car1", "car2", "car3",   "car4",
                                     "car5", "car6", "cycle1", "cycle2"};
  const std::vector<std::string> offered[] = {
      all, {"car1", "car2"}, {"car1", "car2", "cycle1", "cycle2"}, all};
  for (int row = Engine; row <= Horn; ++row) {
    user.AnswersYes();
    Sets(row);
    for (size_t i = 0; i < offered[row].size(); ++i) {
      EXPECT_EQ(user.Hears(), "Sounds:, list, " + offered[row][i] + ", " + std::to_string(i + 1) +
                                  " of " + std::to_string(offered[row].size()));
      user.Presses("Down");
    }
    user.Presses("Escape");
    EXPECT_EQ(user.SeesWindow(), EditorTitle);
  }
}

TEST_F(NewVehicleStory, LeavingTheSoundsOfTheGameChangesNothing) {
  StartsVehicle();
  for (const char* key : {"Escape", "Alt+F4"}) {
    user.AnswersYes();
    Sets(Engine);
    user.Presses("Down");
    user.Presses(key);
    EXPECT_EQ(user.SeesWindow(), EditorTitle);
    EXPECT_EQ(RowHeard(Engine), "Engine Sound: not set");
  }
}

TEST_F(NewVehicleStory, ASoundFromElsewhereIsCopiedBesideTheVehicle) {
  machine.files.Put("D:\\Sounds\\roar.wav", "a roar");
  StartsVehicle();
  SetsSoundFile(Engine, "D:\\Sounds\\roar.wav");
  EXPECT_EQ(user.LastFileDialog().title, "Open Engine Sound");
  EXPECT_EQ(user.LastFileDialog().fileType, "Wave audio sound files (*.wav)");
  EXPECT_EQ(user.LastFileDialog().initialFolder, Vehicles);
  EXPECT_EQ(RowHeard(Engine), "Engine Sound: roar.wav");
  EXPECT_EQ(machine.files.Text(Vehicles + "\\roar.wav"), "a roar");
  EXPECT_EQ(machine.files.Text("D:\\Sounds\\roar.wav"), "a roar");
}

TEST_F(NewVehicleStory, ASoundThatLiesBesideTheVehicleIsNotCopied) {
  machine.files.Put(Vehicles + "\\roar.wav", "a roar");
  const auto stamp = Platform::StampOf(Vehicles + "\\roar.wav");
  StartsVehicle();
  SetsSoundFile(Throttle, "roar.wav");
  EXPECT_EQ(user.LastFileDialog().title, "Open Throttle Sound");
  EXPECT_EQ(RowHeard(Throttle), "Throttle Sound: roar.wav");
  EXPECT_EQ(machine.files.Names(Vehicles), Names("roar.wav"));
  EXPECT_EQ(Platform::StampOf(Vehicles + "\\roar.wav"), stamp);
}

TEST_F(NewVehicleStory, AFileOfThatNameBesideTheVehicleIsNeverReplaced) {
  machine.files.Put("D:\\Sounds\\roar.wav", "another roar");
  machine.files.Put(Vehicles + "\\ROAR.wav", "a roar");
  StartsVehicle();
  SetsSoundFile(Ignition, "D:\\Sounds\\roar.wav");
  EXPECT_EQ(user.LastFileDialog().title, "Open Ignition Sound");
  EXPECT_EQ(RowHeard(Ignition), "Ignition Sound: roar.wav");
  EXPECT_EQ(machine.files.Text(Vehicles + "\\roar.wav"), "a roar");
}

TEST_F(NewVehicleStory, ASoundThatCannotBeCopiedIsToldAndNotSet) {
  machine.files.Put("D:\\Sounds\\roar.wav", "a roar");
  machine.files.HoldAlone("D:\\Sounds\\roar.wav");
  StartsVehicle();
  SetsSoundFile(Horn, "D:\\Sounds\\roar.wav");
  EXPECT_EQ(user.LastFileDialog().title, "Open Horn Sound");
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, HasSubstr("D:\\Sounds\\roar.wav"), "Error"));
  EXPECT_EQ(RowHeard(Horn), "Horn Sound: not set");
  EXPECT_THAT(machine.files.Names(Vehicles), IsEmpty());
}

TEST_F(NewVehicleStory, ASoundWhoseNameTheGameWouldReadOnlyHalfOfIsRefused) {
  machine.files.Put(Vehicles + "\\a=b.wav", "a roar");
  StartsVehicle();
  SetsSoundFile(Horn, "a=b.wav");
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, HasSubstr("characters that cannot be used")));
  EXPECT_EQ(RowHeard(Horn), "Horn Sound: not set");
}

TEST_F(NewVehicleStory, ASoundThatIsNotChosenIsToldInItsOwnWords) {
  StartsVehicle();
  const char* const words[] = {"Engine sound not selected. Can't set engine sound.",
                               "Throttle sound not selected. Can't set throttle sound.",
                               "Ignition sound not selected. Can't set start sound.",
                               "Horn sound not selected. Can't set horn sound."};
  for (int row = Engine; row <= Horn; ++row) {
    user.AnswersNo();
    user.CancelsFileDialog();
    Sets(row);
    EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, words[row], "Error"));
    EXPECT_TRUE(RowHeard(row).ends_with("not set"));
  }
}

TEST_F(NewVehicleStory, TheDialogOfTheEditorLeavesNothingForTheNext) {
  StartsVehicle();
  user.AnswersNo();
  user.CancelsFileDialog();
  Sets(Horn);
  user.Presses("Escape");
  user.CancelsFileDialog();
  user.ChoosesMenu({"Vehicle", "Check .vhc file"});
  EXPECT_EQ(user.LastFileDialog().title, "Open Skidrun2 Vehicle file");
}

// --- Numbers ---

struct NumberTexts {
  const char* prompt;
  const char* title;
  const char* none;
  const char* invalid;
  const char* invalidTitle = "Error";
};

const NumberTexts Numbers[] = {
    {"Type in value for acceleration:", "Acceleration",
     "No acceleration value entered. Cannot set acceleration.",
     "Invalid acceleration value. Must be numeric. Cannot set acceleration."},
    {"Type in value for deceleration:", "Deceleration",
     "No deceleration value entered. Cannot set deceleration.",
     "Invalid deceleration value. Must be numeric. Cannot set deceleration."},
    {"Type in value for top speed:", "Top Speed", "No speed value entered. Cannot set speed.",
     "Invalid speed value. Must be numeric. Cannot set speed."},
    {"Type in value for engine's idle frequency:", "Frequencies",
     "No frequency value entered. Cannot set idle frequency.",
     "Invalid frequency value. Must be numeric. Cannot set idle frequency."},
    {"Type in value for top frequency:", "frequencies",
     "No frequency value entered. Cannot set top frequency.",
     "Invalid frequency value. Must be numeric. Cannot set top frequency."},
    {"Type in value for gear shift frequency:", "Frequencies",
     "No frequency value entered. Cannot set shift frequency.",
     "Invalid frequency value. Must be numeric. Cannot set shift frequency.",
     "Invalid frequency value. Must be numeric. Cannot set shift frequency."},
    {"Type in value for the number of gears:", "Gears", "No value entered. Cannot set gears.",
     "Invalid value. Must be numeric. Cannot set gears."},
    {"Type in value for steering:", "Steering", "No value entered. Cannot set steering.",
     "Invalid value. Must be numeric. Cannot set steering."},
    {"Type in percentage value for steering factor:", "Steering",
     "No value entered. Cannot set steering factor.",
     "Invalid value. Must be numeric. Cannot set steering factor."},
};

TEST_F(NewVehicleStory, EachNumberIsAskedForAndRefusedInItsOwnWords) {
  StartsVehicle();
  for (int row = Acceleration; row <= SteeringFactor; ++row) {
    const NumberTexts& texts = Numbers[row - Acceleration];
    user.CancelsBox();
    Sets(row);
    EXPECT_EQ(user.LastModalWindow().prompt, texts.prompt);
    EXPECT_EQ(user.LastModalWindow().title, texts.title);
    EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, texts.none, "Error"));
    SetsNumber(row, "fast");
    EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, texts.invalid, texts.invalidTitle));
    EXPECT_TRUE(RowHeard(row).ends_with("not set"));
    SetsNumber(row, "42");
    EXPECT_TRUE(RowHeard(row).ends_with(": 42"));
  }
}

TEST_F(NewVehicleStory, TheTitleOfAnInvalidIdleFrequencyIsThatOfAMissingOne) {
  machine.files.Put(Platform::PathBesideProgram(".lng"), "NoIdleFrequencyTitle=Leerlauf\r\n");
  StartsVehicle();
  SetsNumber(IdleFrequency, "fast");
  EXPECT_EQ(user.LastBox().title, "Leerlauf");
}

TEST_F(NewVehicleStory, ANumberIsKeptAsItWasTyped) {
  StartsVehicle();
  SetsNumber(Gears, "  12 ");
  Saves();
  EXPECT_EQ(machine.files.Text(Rocket), "numberofgears=  12 \r\n");
}

TEST_F(NewVehicleStory, ANumberThatTheGameCannotHoldIsRefused) {
  StartsVehicle();
  SetsNumber(TopSpeed, "99999999999");
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, "The number is too large.", "Error"));
  EXPECT_EQ(RowHeard(TopSpeed), "Top Speed: not set");
  EXPECT_EQ(user.SeesWindow(), EditorTitle);
}

TEST_F(NewVehicleStory, ASteeringFactorIsAPercentage) {
  StartsVehicle();
  for (const char* refused : {"0", "101", "-5", "0.5", "100.6"}) {
    SetsNumber(SteeringFactor, refused);
    EXPECT_THAT(user.LastBox(),
                Shows(Icon::Critical,
                      "Invalid value. Must be a percentage between 1 and 100. Cannot set steering "
                      "factor.",
                      "Error"));
    EXPECT_EQ(RowHeard(SteeringFactor), "Steering Factor: not set");
  }
  // Halves are rounded to the even number, as the checker does.
  for (const char* taken : {"1", "100", "0.6", "100.5"}) {
    SetsNumber(SteeringFactor, taken);
    EXPECT_EQ(RowHeard(SteeringFactor), std::string("Steering Factor: ") + taken);
  }
}

TEST_F(NewVehicleStory, WipersAreAQuestion) {
  StartsVehicle();
  user.AnswersYes();
  Sets(Wipers);
  EXPECT_THAT(user.LastBox(),
              Shows(Icon::Question, "Do you want your car to have windscreen wipers?", "Wipers"));
  EXPECT_EQ(RowHeard(Wipers), "Wipers: Yes");
  Saves();
  EXPECT_EQ(machine.files.Text(Rocket), "haswipers=1\r\n");
  user.AnswersNo();
  Sets(Wipers);
  EXPECT_EQ(RowHeard(Wipers), "Wipers: No");
  Saves();
  EXPECT_EQ(machine.files.Text(Rocket), "haswipers=0\r\n");
}

// --- Saving and leaving ---

TEST_F(NewVehicleStory, ASaveWritesWhatIsSetInTheOrderOfTheVariables) {
  StartsVehicle();
  SetsNumber(TopSpeed, "250");
  Saves();
  EXPECT_EQ(machine.files.Text(Rocket), "skidrun=250\r\n");
  EXPECT_THAT(user.LastBox(), Shows(Icon::Information, "Vehicle file saved!", "Congratulations!"));
  EXPECT_EQ(user.SeesWindow(), EditorTitle);
  SetsInternalSound(Engine, "car3");
  SetsNumber(TopSpeed, "260");
  Saves();
  EXPECT_EQ(machine.files.Text(Rocket), "enginesound=car3\r\nskidrun=260\r\n");
}

TEST_F(NewVehicleStory, WithoutAnyValueNothingIsSaved) {
  machine.files.Put(Rocket, "an old vehicle");
  user.AnswersYes();
  StartsVehicle();
  Saves();
  EXPECT_THAT(
      user.LastBox(),
      Shows(Icon::Critical, "No value has been set yet. The file was not saved.", "Save error"));
  EXPECT_EQ(machine.files.Text(Rocket), "an old vehicle");
  EXPECT_EQ(user.SeesWindow(), EditorTitle);
}

TEST_F(NewVehicleStory, ASaveThatFailsLeavesTheOldFileAndTheVehicle) {
  machine.files.Put(Rocket, "an old vehicle");
  user.AnswersYes();
  StartsVehicle();
  SetsNumber(TopSpeed, "250");
  machine.files.FailWrites(Simulated::After{0}, RuntimeError::DiskFull);
  Saves();
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, HasSubstr("The disk is full."), "Error"));
  EXPECT_EQ(machine.files.Text(Rocket), "an old vehicle");
  EXPECT_EQ(RowHeard(TopSpeed), "Top Speed: 250");
}

TEST_F(NewVehicleStory, LeavingEndsTheVehicle) {
  for (const char* key : {"Escape", "Alt+F4"}) {
    StartsVehicle();
    SetsNumber(TopSpeed, "250");
    user.Presses(key);
    EXPECT_EQ(user.SeesWindow(), PackTitle);
    EXPECT_EQ(TheVehicle().VehicleFilePath, "");
    EXPECT_EQ(TheVehicle().VehicleData, "");
  }
  StartsVehicle();
  EXPECT_EQ(RowHeard(TopSpeed), "Top Speed: not set");
}

}  // namespace
