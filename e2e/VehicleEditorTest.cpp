// A vehicle made from the menu to the saved file, with the keyboard alone.
#include "e2e/driver/Accessibility.h"
#include "e2e/driver/VehicleEditorDriver.h"

namespace E2e {
namespace {

constexpr const char* SoundsTitle = "Select Internal Sound:";

using VehicleEditor = VehicleEditorTest;

TEST_F(VehicleEditor, FromTheMenuToTheSavedFile) {
  const Window editor = StartVehicle("rocket");
  Pack& pack = RunningPack();
  EXPECT_EQ(editor.focus(), editor.control(List));
  EXPECT_EQ(editor.control(List).rows().size(), 14u);
  EXPECT_EQ(editor.control(List).selectedRow(), "Engine Sound: not set");

  Set("Engine Sound");
  EXPECT_EQ(pack.AnswerBox("Y"),
            Question("Sound selection", "Would you like to use an internal game sound?"));
  const Window sounds = pack.WaitForWindow(SoundsTitle);
  EXPECT_EQ(sounds.control("Sounds:").rows(),
            (std::vector<std::string>{"car1", "car2", "car3", "car4", "car5", "car6", "cycle1",
                                      "cycle2"}));
  pack.Press("Down");
  pack.WaitForRow("car2");
  pack.Press("Enter");
  pack.WaitForWindow(EditorTitle);
  EXPECT_EQ(editor.focus(), editor.control(List));
  pack.WaitForRow("Engine Sound: car2");

  SetNumber("Top Speed", "Top Speed", "250");
  SetNumber("Steering Factor", "Steering", " 55 ");
  Set("Wipers");
  EXPECT_EQ(pack.AnswerBox("Y"),
            Question("Wipers", "Do you want your car to have windscreen wipers?"));
  pack.WaitForWindow(EditorTitle);
  EXPECT_EQ(editor.control(List).rows().back(), "Wipers: Yes");
  EXPECT_THAT(BrokenRules(editor), testing::IsEmpty());

  pack.Press("Alt+A");
  EXPECT_EQ(pack.AnswerBox(), Information("Congratulations!", "Vehicle file saved!"));
  pack.WaitForWindow(EditorTitle);
  EXPECT_EQ(ReadFile(vehicle("rocket.vhc")),
            "enginesound=car2\r\nskidrun=250\r\nsteeringfactor= 55 \r\nhaswipers=1\r\n");
  pack.Press("Escape");
  pack.WaitForMain();
}

TEST_F(VehicleEditor, SoundFromElsewhereIsCopiedBesideTheVehicle) {
  WriteFile(scratch.path() + "\\roar.wav", "a roar");
  const Window editor = StartVehicle("rocket");
  Pack& pack = RunningPack();
  Set("Horn Sound");
  pack.AnswerBox("N");
  EXPECT_EQ(pack.WaitForFileDialog().title(), "Open Horn Sound");
  pack.ChooseFile(scratch.path() + "\\roar.wav");
  pack.WaitForWindow(EditorTitle);
  EXPECT_EQ(editor.control(List).rows()[3], "Horn Sound: roar.wav");
  EXPECT_EQ(ReadFile(vehicle("roar.wav")), "a roar");

  // Another of that name: the one beside the vehicle stays.
  WriteFile(scratch.path() + "\\roar.wav", "another roar");
  Set("Horn Sound");
  pack.AnswerBox("N");
  pack.ChooseFile(scratch.path() + "\\roar.wav");
  pack.WaitForWindow(EditorTitle);
  EXPECT_EQ(ReadFile(vehicle("roar.wav")), "a roar");
}

TEST_F(VehicleEditor, RefusedValuesAreToldAndNothingIsSaved) {
  StartVehicle("rocket");
  Pack& pack = RunningPack();
  Set("Steering Factor");
  pack.WaitForWindow("Steering");
  pack.Type("101");
  pack.Press("Enter");
  EXPECT_EQ(pack.AnswerBox(),
            Critical("Error",
                     "Invalid value. Must be a percentage between 1 and 100. Cannot set steering "
                     "factor."));
  pack.WaitForWindow(EditorTitle);
  pack.Press("Alt+A");
  EXPECT_EQ(pack.AnswerBox(),
            Critical("Save error", "No value has been set yet. The file was not saved."));
  pack.WaitForWindow(EditorTitle);
  EXPECT_FALSE(Exists(vehicle("rocket.vhc")));
  pack.Press("Alt+F4");
  pack.WaitForMain();
}

}  // namespace
}  // namespace E2e
