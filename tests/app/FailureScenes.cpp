// Failures of every kind in the language of keys.
#include "archive/Refusal.h"
#include "base/RuntimeError.h"
#include "platform/InterruptedSave.h"
#include "tests/app/TranslatedPack.h"
#include "text/FailureText.h"
#include "text/StringTable.h"

namespace Translated {

namespace {

// A failure of each kind, as the window in use tells it.
void TellFailures(Player& player) {
  using enum RuntimeError::Number;
  Platform::Form window(FixedText("Tool"));
  Platform::Button Fail(window, {.text = FixedText("Fail"), .isDefault = true, .isCancel = true});
  window.Show();
  const auto fail = [&](std::function<void()> action) {
    Fail.OnClick = std::move(action);
    player.user.Presses("Enter");
  };
  for (const auto number :
       {InvalidCall, Overflow, OutOfMemory, TypeMismatch, FileNotFound, DeviceError, DiskFull,
        PermissionDenied, DiskNotReady, PathFileAccess, PathNotFound, FileAlreadyExists}) {
    fail([number] { throw RuntimeError(number); });
  }
  fail([] { throw RuntimeError(PathFileAccess, RuntimeErrorTexts.NameNotUsable, "C:\\?"); });
  fail([] { throw RuntimeError(PermissionDenied, RuntimeErrorTexts.ClipboardInUse); });
  fail([] { throw RuntimeError(DeviceError, RuntimeErrorTexts.NoProgram); });
  fail([] { throw std::logic_error("never expected"); });
  fail([] { throw RuntimeError(DeviceError, RuntimeErrorTexts.SystemLibrary, "a.dll"); });
  fail([] {
    const RuntimeError failure(DiskFull, RuntimeErrorTexts.SaveHalfDone, "C:\\a");
    throw RuntimeError::WithCopy(failure, "C:\\b");
  });
  // All that may have been done when the system refused.
  bool isStep = false;
  for (const LangText& text : TextsOf(RuntimeErrorTexts)) {
    isStep = isStep || text.key == RuntimeErrorTexts.OpeningFile.key;
    if (text.key == RuntimeErrorTexts.PutBackTitle.key) break;
    if (isStep) fail([text] { throw RuntimeError(DeviceError, "", {text, 5}); });
  }
  for (const LangText& text : TextsOf(ArchiveTexts)) {
    fail([text] { Archive::Refuse(text, "C:\\a.zip", "b"); });
  }
  window.GoBack();
}

}  // namespace

std::vector<Scene> FailureScenes() {
  return {
      {"a game that is not installed",
       [](Player& player) {
         player.machine.registry = {};
         player.user.ChoosesMenu({"<XTrack>", "<TNew>"});
       },
       {"box <RTETitle>: <RTEGameNotInstalled>"}},

      {"failures",
       TellFailures,
       {"box <RTETitle>: <RTEInvalidCall>",
        "box <RTETitle>: <RTEOverflow>",
        "box <RTETitle>: <RTEOutOfMemory>",
        "box <RTETitle>: <RTETypeMismatch>",
        "box <RTETitle>: <RTEFileNotFound>",
        "box <RTETitle>: <RTEDeviceError>",
        "box <RTETitle>: <RTEDiskFull>",
        "box <RTETitle>: <RTEPermissionDenied>",
        "box <RTETitle>: <RTEDiskNotReady>",
        "box <RTETitle>: <RTEPathFileAccess>",
        "box <RTETitle>: <RTEPathNotFound>",
        "box <RTETitle>: <RTEFileAlreadyExists>",
        "box <RTETitle>: <RTENameNotUsable>\r\n<RTEFile> C:\\?",
        "box <RTETitle>: <RTEClipboardInUse>",
        "box <RTETitle>: <RTENoProgram>",
        "box <RTETitle>: <RTEUnexpected>",
        "box <RTETitle>: <RTESystemLibrary>\r\n<RTEFile> a.dll",
        "box <RTETitle>: <RTESaveHalfDone>\r\n<RTEFile> C:\\a\r\n<RTECopy> C:\\b",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTEOpeningFile>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTEReadingFile>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTEWritingFile>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTEReplacingFile>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTERewritingFile>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTERestoringFile>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTERenamingFile>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTEDeletingFile>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTEAskingAttributes>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTESettingAttributes>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTEListingFolder>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTEMakingFolder>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTEDeletingFolder>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTEAskingFreeSpace>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTEMakingWindow>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTEMakingMenu>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTEStartingTimer>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTEMeasuringTexts>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTEShowingFileDialog>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTEOpeningSoundDevice>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTEMakingSoundBuffer>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTEPlayingSound>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTESettingFrequency>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTEOpeningClipboard>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTEFillingClipboard>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTEStartingProgram>: <RTESystemError> 5",
        "box <RTETitle>: <RTEDeviceError>\r\n<RTEMakingMutex>: <RTESystemError> 5",
        "box <RTETitle>: <ArchiveNotAZip>\r\n<RTEFile> C:\\a.zip: b",
        "box <RTETitle>: <ArchiveDamaged>\r\n<RTEFile> C:\\a.zip: b",
        "box <RTETitle>: <ArchiveEncrypted>\r\n<RTEFile> C:\\a.zip: b",
        "box <RTETitle>: <ArchiveMethodUnknown>\r\n<RTEFile> C:\\a.zip: b",
        "box <RTETitle>: <ArchiveInSeveralParts>\r\n<RTEFile> C:\\a.zip: b",
        "box <RTETitle>: <ArchiveTooLarge>\r\n<RTEFile> C:\\a.zip: b",
        "box <RTETitle>: <ArchiveLeadsOutside>\r\n<RTEFile> C:\\a.zip: b",
        "box <RTETitle>: <ArchiveNameNotUsable>\r\n<RTEFile> C:\\a.zip: b",
        "box <RTETitle>: <ArchiveNameNotInLanguage>\r\n<RTEFile> C:\\a.zip: b",
        "box <RTETitle>: <ArchiveNameTwice>\r\n<RTEFile> C:\\a.zip: b",
        "box <RTETitle>: <ArchiveHoldsLink>\r\n<RTEFile> C:\\a.zip: b",
        "box <RTETitle>: <ArchiveSourceChanged>\r\n<RTEFile> C:\\a.zip: b"}},

      {"files of an earlier run that were half saved",
       [](Player& player) {
         for (const LangText& text : {RuntimeErrorTexts.PutBack, RuntimeErrorTexts.NotPutBack}) {
           player.shown.push_back("box " + GetLangString(RuntimeErrorTexts.PutBackTitle) + ": " +
                                  SaveNoteText({text, "C:\\a", ""}));
         }
       },
       {"box <RTEPutBackTitle>: <RTEPutBack>\r\n<RTEFile> C:\\a",
        "box <RTEPutBackTitle>: <RTENotPutBack>\r\n<RTEFile> C:\\a"}},
  };
}

}  // namespace Translated
