#include "e2e/driver/VehicleEditorDriver.h"

namespace E2e {

std::string VehicleEditorTest::vehicle(const std::string& name) const {
  return gameFolder() + "\\vehicles\\" + name;
}

Window VehicleEditorTest::StartVehicle(const std::string& name) {
  Pack& pack = StartPack();
  pack.ChooseMenu({"Vehicle", "New"});
  const FileDialogDriver dialog = pack.WaitForFileDialog();
  EXPECT_EQ(dialog.title(), "Save Skidrun2 Vehicle file");
  EXPECT_EQ(dialog.fileType(), "SK2 Vehicle files (*.vhc)");
  pack.ChooseFile(name);
  return pack.WaitForWindow(EditorTitle);
}

void VehicleEditorTest::GoTo(const std::string& row) {
  Pack& pack = RunningPack();
  const Window list = pack.WaitForWindow(EditorTitle).control(List);
  pack.TabTo(List);
  const std::vector<std::string> rows = list.rows();
  pack.Press("Home");
  pack.WaitForRow(rows.at(0));
  for (size_t i = 0; !rows.at(i).starts_with(row); ++i) {
    pack.Press("Down");
    pack.WaitForRow(rows.at(i + 1));
  }
}

void VehicleEditorTest::Set(const std::string& row) {
  GoTo(row);
  RunningPack().Press("Alt+S");
}

void VehicleEditorTest::SetNumber(const std::string& row, const std::string& title,
                                  const std::string& number) {
  Set(row);
  RunningPack().WaitForWindow(title);
  RunningPack().Type(number);
  RunningPack().Press("Enter");
  RunningPack().WaitForWindow(EditorTitle);
}

void VehicleEditorTest::SetInternalSound(const std::string& row, const std::string& name) {
  Pack& pack = RunningPack();
  Set(row);
  pack.AnswerBox("Y");
  const Window sounds = pack.WaitForWindow("Select Internal Sound:").control("Sounds:");
  const std::vector<std::string> names = sounds.rows();
  for (size_t i = 0; names.at(i) != name; ++i) {
    pack.Press("Down");
    pack.WaitForRow(names.at(i + 1));
  }
  pack.Press("Enter");
  pack.WaitForWindow(EditorTitle);
}

void VehicleEditorTest::SetSoundFile(const std::string& row, const std::string& name) {
  Pack& pack = RunningPack();
  Set(row);
  pack.AnswerBox("N");
  pack.ChooseFile(vehicle(name));
  pack.WaitForWindow(EditorTitle);
}

}  // namespace E2e
