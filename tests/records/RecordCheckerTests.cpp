// What the user is told about a record file: line by line, and when there is nothing to read.
#include "base/LineReader.h"
#include "records/RecordChecker.h"
#include "tests/FailureSweep.h"
#include "tests/HostFile.h"
#include "tests/PeakMemory.h"
#include "tests/records/RecordStory.h"

namespace {

using Platform::Icon;
using testing::HasSubstr;

const std::string InvalidFormat = "Invalid format. Format should be TrackName=TimeInMS.";
const std::string InvalidValue = "Invalid value. Record value must be a number in milliseconds.";
const std::string InOrder = "Record data file is in working order.";

class RecordCheckerStory : public RecordStory {
 protected:
  // Checks a record file with these bytes.
  int64_t Check(std::string_view bytes) {
    PutRecords(bytes);
    return CheckRecordFile(RecordPath, message);
  }

  void ChooseCheck() { user.ChoosesMenu({"Game", "Check Record File"}); }

  std::string message;
};

TEST_F(RecordCheckerStory, RecordsWithNumbersAreInOrder) {
  EXPECT_EQ(Check("hill=72345\r\nlake=1\r\n"), 0);
  EXPECT_EQ(message, InOrder);
  EXPECT_EQ(Check("no line end=5"), 0);
  EXPECT_EQ(Check("ends in CR=5\ragain=6\r"), 0);
  EXPECT_EQ(Check(""), 0);
}

TEST_F(RecordCheckerStory, AnyNumericTextIsATime) {
  for (const char* value : {"12.5", "-5", " 7 ", "1e3", "&H10", "(5)", "99999999999", "1,000"}) {
    EXPECT_EQ(Check(std::string("Lap=") + value), 0) << value;
  }
}

TEST_F(RecordCheckerStory, NumbersAreThoseOfTheUsersLocale) {
  machine.locale.SetSeparators(",", ".");
  EXPECT_EQ(Check("Lap=12,5\r\n"), 0);
  EXPECT_EQ(Check("Lap=1.000\r\n"), 0);
}

TEST_F(RecordCheckerStory, ALineNeedsExactlyOneEqualsSign) {
  EXPECT_EQ(Check("Lap=1000=2\r\n"), 1);
  EXPECT_EQ(message, InvalidFormat);
  EXPECT_EQ(Check("a=1\r\nb=2\r\nLap\r\nc=x\r\n"), 3);
  EXPECT_EQ(message, InvalidFormat);
  EXPECT_EQ(Check("a=1\r\nb=\r=\r"), 2);
  EXPECT_EQ(message, InvalidValue);
  EXPECT_EQ(Check("a=1\nb=2\n"), 1) << "a lone LF ends no line";
  EXPECT_EQ(message, InvalidFormat);
}

TEST_F(RecordCheckerStory, ATimeMustBeANumber) {
  EXPECT_EQ(Check("hill=1\r\nLap=fast\r\n"), 2);
  EXPECT_EQ(message, InvalidValue);
  EXPECT_EQ(Check("Lap=\r\n"), 1);
  EXPECT_EQ(message, InvalidValue);
}

TEST_F(RecordCheckerStory, ABlankLineIsAFault) {
  EXPECT_EQ(Check("hill=1\r\n\r\nlake=2\r\n"), 2);
  EXPECT_EQ(message, InvalidFormat);
  EXPECT_EQ(Check("   \r\n"), 1);
  EXPECT_EQ(Check("hill=1\r\n\r\n"), 2);
}

TEST_F(RecordCheckerStory, TheFirstFaultIsTold) {
  EXPECT_EQ(Check("a=1\r\nb=x\r\nc\r\n"), 2);
  EXPECT_EQ(message, InvalidValue);
}

TEST_F(RecordCheckerStory, LinesMayArriveInPieces) {
  machine.files.LimitReads(1);
  EXPECT_EQ(Check("a=1\r\nb=2\r\nc\r\n"), 3);
}

TEST_F(RecordCheckerStory, AMissingFileHasAStatusOfItsOwn) {
  EXPECT_EQ(CheckRecordFile(RecordPath, message), MissingRecordFile);
  EXPECT_EQ(message, "Record file does not exist, therefore cannot be checked.");
}

TEST_F(RecordCheckerStory, AFileThatCannotBeReadIsNotAFailure) {
  PutRecords("a=1\r\n");
  machine.files.HoldAlone(RecordPath);
  EXPECT_EQ(CheckRecordFile(RecordPath, message), UnreadableRecordFile);
  EXPECT_EQ(message, "Access was denied, or the file is in use by another program.\r\nFile: " +
                         RecordPath + "\r\nOpening a file: system error 32");
  machine.files.Release(RecordPath);
  EXPECT_EQ(CheckRecordFile(RecordPath, message), 0);
}

TEST_F(RecordCheckerStory, AFolderInThePlaceOfTheFileCannotBeRead) {
  machine.files.PutFolder(RecordPath);
  EXPECT_EQ(CheckRecordFile(RecordPath, message), UnreadableRecordFile);
}

TEST_F(RecordCheckerStory, ALineOfTenMegabytesIsJudgedByTheSameRules) {
  const std::string stretch(10 << 20, 'x');
  EXPECT_EQ(Check("a=1\r\n" + stretch), 2);
  EXPECT_EQ(message, InvalidFormat);
  EXPECT_EQ(Check("a=1\r\n" + stretch + "=" + stretch + "=1"), 2);
  EXPECT_EQ(message, InvalidFormat);
  EXPECT_EQ(Check("Lap=" + stretch), 1);
  EXPECT_EQ(message, InvalidValue);
  EXPECT_EQ(Check(stretch + "=72345\r\nLap=" + std::string(10 << 20, '9')), 0);
  EXPECT_EQ(message, InOrder);
}

TEST_F(RecordCheckerStory, AFileOfAnySizeIsCheckedInBoundedMemory) {
  constexpr size_t Megabyte = 1 << 20;
  HostFile file;
  size_t lines = file.Repeat("hill=72345\r\n", Megabyte);
  lines += file.Repeat(std::string(Megabyte / 2, 'x') + "=1\r\n", 63 * Megabyte);
  lines += file.Repeat("Lap=fast\r\n", 1);
  machine.files.MountHostFile(RecordPath, file.path());
  int64_t status = 0;
  const auto growth = PeakMemory::Of([&] { status = CheckRecordFile(RecordPath, message); });
  EXPECT_EQ(status, static_cast<int64_t>(lines));
  if (!growth) GTEST_SKIP() << "nobody tells how much memory is in use";
  EXPECT_LT(*growth, 16 * Megabyte);
}

TEST(RecordCheckerSweep, AnySingleFailureIsAResult) {
  const std::string path = "C:\\Games\\Skidrun2\\highscore.cfg";
  const auto calls = ForEachCallThatFails([&](auto& machine, Simulated::After after) {
    machine.files.Put(path, "a=1\r\nb=x\r\n");
    machine.FailAnyCall(after);
    std::string message;
    const int64_t status = CheckRecordFile(path, message);
    int64_t expected = 2;
    const std::string call = machine.FailedCall();
    if (call == "GetInfo " + path) expected = MissingRecordFile;
    if (call == "Open " + path || call == "Read " + path) expected = UnreadableRecordFile;
    EXPECT_EQ(status, expected);
    EXPECT_NE(message, "");
  });
  EXPECT_GT(calls.size(), 2U) << "hardly a call was made to fail";
}

TEST_F(RecordCheckerStory, TheMenuTellsThatAllIsWell) {
  PutRecords("hill=72345\r\n");
  ChooseCheck();
  EXPECT_THAT(user.LastBox(),
              Shows(Icon::Information, "Score file checked with no errors.", "Check complete"));
  ExpectMainWindow();
}

TEST_F(RecordCheckerStory, TheMenuTellsTheFaultyLine) {
  PutRecords("hill=72345\r\nLap=1000=2\r\n");
  ChooseCheck();
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, "Line 2, " + InvalidFormat, "Syntax Error"));
  ExpectMainWindow();
}

TEST_F(RecordCheckerStory, TheMenuTellsThatThereIsNoFile) {
  ChooseCheck();
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, "The record file doesn't exist.", "Error."));
  EXPECT_FALSE(machine.files.Exists(RecordPath));
  ExpectMainWindow();
}

TEST_F(RecordCheckerStory, TheMenuTellsWhyAFileCannotBeRead) {
  PutRecords("a=1\r\n");
  machine.files.HoldAlone(RecordPath);
  ChooseCheck();
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, HasSubstr(RecordPath), "Error"));
  ExpectMainWindow();
}

TEST_F(RecordCheckerStory, WithoutTheGameTheUserIsToldOnce) {
  machine.registry = {};
  ChooseCheck();
  ASSERT_EQ(user.Boxes().size(), 1u);
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, HasSubstr("Skidrun2 was not found")));
  ExpectMainWindow();
}

TEST_F(RecordCheckerStory, TheChooserOffersTheCheckAsItsThirdEntry) {
  PutRecords("Lap=fast\r\n");
  user.Presses("Ctrl+C");
  user.Presses("End");
  user.Presses("Enter");
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, "Line 1, " + InvalidValue, "Syntax Error"));
  EXPECT_EQ(user.LastBox().owner, Platform::MainForm().title());
  ExpectMainWindow();
}

TEST_F(RecordCheckerStory, TheCheckChangesNothing) {
  const std::string bytes = "  hill = 5 \r\n\r\nx";
  PutRecords(bytes);
  ChooseCheck();
  EXPECT_EQ(Records(), bytes);
}

}  // namespace
