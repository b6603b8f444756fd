// Ctrl+N, Ctrl+P and Ctrl+C ask what is meant.
#include "e2e/driver/PackTest.h"

namespace E2e {
namespace {

using Choosers = PackTest;

TEST_F(Choosers, CtrlCChecksATrack) {
  Pack& pack = StartPack();
  pack.Press("Ctrl+C");
  const Window chooser = pack.WaitForWindow("Check what?");
  const Window list = chooser.control("Check:");
  EXPECT_EQ(list.rows(), (std::vector<std::string>{"Vehicle", "Track", "Records file"}));
  EXPECT_EQ(list.selectedRow(), "Vehicle");
  EXPECT_EQ(chooser.focus(), list);

  pack.Press("Down");
  pack.WaitForRow("Track");
  pack.Press("Enter");
  pack.ChooseFile("hill.trk");
  EXPECT_EQ(pack.AnswerBox().title, "File OK");
  pack.WaitForMain();

  pack.Press("Ctrl+C");
  pack.WaitForWindow("Check what?");
  pack.WaitForRow("Track");  // as it was left
}

TEST_F(Choosers, CtrlCWithoutMovingChecksAVehicle) {
  Pack& pack = StartPack();
  pack.Press("Ctrl+C");
  pack.WaitForWindow("Check what?");
  pack.Press("Enter");
  EXPECT_EQ(pack.WaitForFileDialog().title(), "Open Skidrun2 Vehicle file");
  pack.ChooseFile("Hornet\\Hornet.vhc");
  EXPECT_EQ(pack.AnswerBox(), Information("File OK", "Vehicle file checked with no errors."));
  pack.WaitForMain();
}

TEST_F(Choosers, CtrlNStartsATrackAndACancelledDialogComesBack) {
  Pack& pack = StartPack();
  pack.Press("Ctrl+N");
  const Window chooser = pack.WaitForWindow("New what?");
  EXPECT_EQ(chooser.control("New:").rows(), (std::vector<std::string>{"Vehicle", "Track"}));
  pack.Press("Down");
  pack.WaitForRow("Track");
  pack.Press("Enter");
  EXPECT_EQ(pack.WaitForFileDialog().title(), "Save Skidrun2 Track file");
  pack.CancelFileDialog();
  EXPECT_EQ(pack.AnswerBox(), Information("Aborted", "Trackmaker aborted. No filename selected."));
  pack.WaitForMain();
}

TEST_F(Choosers, EscapeAndCloseBoxComeBack) {
  Pack& pack = StartPack();
  for (const char* keys : {"Escape", "Alt+F4"}) {
    pack.Press("Ctrl+P");
    const Window chooser = pack.WaitForWindow("Package what?");
    EXPECT_EQ(chooser.control("Package:").rows(), (std::vector<std::string>{"Vehicle", "Track"}));
    pack.Press(keys);
    pack.WaitForMain();
    EXPECT_FALSE(chooser.IsVisible());
  }
  EXPECT_TRUE(pack.program().IsRunning());
}

}  // namespace
}  // namespace E2e
