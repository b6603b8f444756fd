#include "ui/FileDialog.h"

#include "base/RuntimeError.h"
#include "machine/simulated/Machine.h"
#include "platform/Paths.h"
#include "ui/Forms.h"
#include "ui/MsgBox.h"
#include "ui/Stage.h"

namespace Platform {

namespace {

// The full path of what the user typed.
std::string Completed(const FileDialog& dialog, std::string path) {
  if (NameOf(path) == path) {
    const bool endsInBackslash = NameOf(dialog.initialFolder).empty();
    path = dialog.initialFolder + (endsInBackslash ? "" : "\\") + path;
  }
  if (!dialog.defaultExtension.empty() && NameOf(path).find('.') == std::string::npos) {
    path += "." + dialog.defaultExtension;
  }
  return path;
}

// The dialog's own words on a folder that is not there.
bool IsFolderThere(const std::string& path) {
  const auto* folder = Simulated::TheMachine().files.Find(FolderOf(path));
  if (folder && folder->isFolder) return true;
  MsgBox(path + "\r\nPath does not exist.\r\nCheck the path and try again.", "Choose a file",
         Icon::Critical);
  return false;
}

// The dialog's own question, if saving under the path would replace a file.
bool MayBeChosen(const FileDialog& dialog, const std::string& path) {
  if (dialog.kind() == FileDialog::Kind::Open || !Simulated::TheMachine().files.Exists(path)) {
    return true;
  }
  return MsgBox(NameOf(path) + " already exists.\r\nDo you want to replace it?", "Confirm Save As",
                Icon::Question, Buttons::YesNoDefaultNo) == Answer::Yes;
}

}  // namespace

std::string FileDialog::Show() const {
  Simulated::Machine& machine = Simulated::TheMachine();
  Simulated::Script& script = machine.user.script();
  const BoxOverStage box;
  if (machine.faults.Strikes("FileDialog::Show " + title)) {
    throw RuntimeError(RuntimeError::DeviceError, "",
                       {RuntimeErrorTexts.ShowingFileDialog, 0xFFFF});
  }
  script.fileDialogs.push_back({kind_, title, fileType, pattern, defaultExtension, initialFolder});
  if (title.empty()) Simulated::Complain("a file dialog without a title");
  const Form* owner = ActiveForm();
  if (owner && !owner->IsVisible()) Simulated::Complain("a file dialog over nothing: " + title);
  if (const auto action = script.TakeBoxStep(title)) {
    machine.screen.dialogs.push_back(title);
    (*action)();
    machine.screen.dialogs.pop_back();
  }
  for (;;) {
    if (script.files.empty()) {
      Simulated::Complain("an unexpected file dialog: " + title);
      return "";
    }
    const std::string typed = script.files.front();
    script.files.pop_front();
    if (typed.empty()) return "";
    std::string path = Completed(*this, typed);
    CheckName(path);
    // The dialog stays open, and the user types another name.
    if (!IsFolderThere(path) || !MayBeChosen(*this, path)) continue;
    return path;
  }
}

}  // namespace Platform
