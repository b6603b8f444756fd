#include "packaging/RecordingTold.h"

#include "base/SharedTexts.h"
#include "packaging/PackagingTexts.h"
#include "ui/Messages.h"

namespace {

const LangText& TextOf(Platform::RecordingFailure failure) {
  using enum Platform::RecordingFailure;
  switch (failure) {
    case NoDevice: return PackagingTexts.RecordingNoDevice;
    case Forbidden: return PackagingTexts.RecordingForbidden;
    case InUse: return PackagingTexts.RecordingInUse;
    case FileFailed: return PackagingTexts.RecordingFileFailed;
    case None:
    case DeviceFailed: break;
  }
  return PackagingTexts.RecordingDeviceFailed;
}

}  // namespace

void TellRecordingFailure(Platform::RecordingFailure failure) {
  Messages::Show(TextOf(failure), SharedTexts.Error, Platform::Icon::Critical);
}

void TellPackagerAborted() {
  Messages::Show(PackagingTexts.PAbortedText, PackagingTexts.PAbortedTitle,
                 Platform::Icon::Information);
}
