// What the user is told of a failure, line by line.
#include "text/FailureText.h"

#include <new>

#include "base/RuntimeError.h"
#include "platform/Files.h"
#include "platform/InterruptedSave.h"
#include "tests/Matchers.h"
#include "tests/Story.h"
#include "ui/Forms.h"

namespace {

using Platform::Icon;
using testing::HasSubstr;

class FailureTexts : public Story {};

TEST_F(FailureTexts, ACauseAndAFile) {
  EXPECT_EQ(FailureText(RuntimeError(RuntimeError::Overflow)), "The number is too large.");
  EXPECT_EQ(FailureText(RuntimeError(RuntimeError::DiskFull, "C:\\a")),
            "The disk is full.\r\nFile: C:\\a");
  EXPECT_EQ(FailureText(RuntimeError(RuntimeError::DiskFull), "C:\\b"),
            "The disk is full.\r\nFile: C:\\b");
  EXPECT_EQ(FailureText(std::bad_alloc()), "There is not enough memory.");
}

TEST_F(FailureTexts, TheLastLineIsWhatTheSystemSaid) {
  const RuntimeError failure(RuntimeError::DeviceError, "C:\\a",
                             {RuntimeErrorTexts.ReadingFile, 1117});
  EXPECT_EQ(FailureText(failure),
            "The device reported an error.\r\nFile: C:\\a\r\nReading a file: system error 1117");
  const RuntimeError sound(RuntimeError::DeviceError, "",
                           {RuntimeErrorTexts.OpeningSoundDevice, 0x88780078});
  EXPECT_EQ(FailureText(sound),
            "The device reported an error.\r\nOpening the sound device: system error 0x88780078");
}

TEST_F(FailureTexts, TheCopyOfADamagedFileIsNamed) {
  const RuntimeError failure(RuntimeError::DiskFull, "C:\\a", {RuntimeErrorTexts.WritingFile, 112});
  EXPECT_EQ(FailureText(RuntimeError::WithCopy(failure, "C:\\Temp\\b.old")),
            "The file could be saved only in part. What it held before is in the copy.\r\n"
            "File: C:\\a\r\nCopy: C:\\Temp\\b.old\r\nWriting a file: system error 112");
}

TEST_F(FailureTexts, AreTranslated) {
  machine.files.Put(machine.executable.folder + "\\sk2pack.lng",
                    "RTEDiskFull=Voll.\r\nRTEFile=Datei:\r\nRTEWritingFile=Schreiben\r\n"
                    "RTESystemError=Systemfehler\r\n");
  EXPECT_EQ(FailureText(RuntimeError(RuntimeError::DiskFull, "C:\\a",
                                     {RuntimeErrorTexts.WritingFile, 112})),
            "Voll.\r\nDatei: C:\\a\r\nSchreiben: Systemfehler 112");
}

// A save that was cut off in an earlier run, found in the middle of an action of the user.
class SaveNotes : public Story {
 protected:
  SaveNotes() {
    Platform::StartProgram(main);
    machine.files.PutFolder("C:\\Game");
  }
  void PutInterrupted(const std::string& holds) {
    machine.files.Put(path, holds);
    machine.files.Put(files.old, "oldold");
    machine.files.Put(files.contents, "newnew");
  }
  void Read() {
    Platform::Dispatch([this] { Platform::ReadWholeFile(path); });
  }

  Platform::Form main{FixedText("Main")};
  const std::string path = "C:\\Game\\highscore.cfg";
  const Platform::RescueFiles files{path};
};

TEST_F(SaveNotes, TheUserIsToldOfAFileThatWasPutBack) {
  PutInterrupted("newold");
  Read();
  ASSERT_EQ(user.Boxes().size(), 1u);
  EXPECT_THAT(user.LastBox(),
              Shows(Icon::Information, HasSubstr("has been put back"), "File put back"));
  EXPECT_THAT(user.LastBox().text, HasSubstr("\r\nFile: " + path));
  EXPECT_EQ(machine.files.Text(path), "oldold");
  Read();
  EXPECT_EQ(user.Boxes().size(), 1u) << "told once";
}

TEST_F(SaveNotes, TheUserIsToldWhereTheOldContentsOfAChangedFileAre) {
  PutInterrupted("something else");
  Read();
  ASSERT_EQ(user.Boxes().size(), 1u);
  const std::string text = user.LastBox().text;
  EXPECT_THAT(text, HasSubstr("another program has changed the file since"));
  const size_t at = text.find("Copy: ");
  ASSERT_NE(at, std::string::npos);
  EXPECT_EQ(machine.files.Text(text.substr(at + 6)), "oldold");
}

}  // namespace
