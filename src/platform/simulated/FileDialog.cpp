#include "platform/FileDialog.h"

#include "base/File.h"
#include "base/RuntimeError.h"
#include "platform/Forms.h"
#include "platform/simulated/Machine.h"

namespace Platform {

std::string FileDialog::Show() {
  Simulated::Machine& machine = Simulated::TheMachine();
  Simulated::Script& script = machine.user.script();
  if (machine.faults.Strikes("FileDialog " + title)) throw RuntimeError(RuntimeError::DeviceError);
  script.fileDialogs.push_back({kind_, title, filter, defaultExtension, initialFolder});
  if (title.empty()) Simulated::Complain("a file dialog without a title");
  const Form* owner = ActiveForm();
  if (owner && !owner->IsVisible()) Simulated::Complain("a file dialog over nothing: " + title);
  if (const auto action = script.TakeBoxStep(title)) {
    machine.screen.dialogs.push_back(title);
    (*action)();
    machine.screen.dialogs.pop_back();
  }
  if (script.files.empty()) {
    Simulated::Complain("an unexpected file dialog: " + title);
    return "";
  }
  std::string path = script.files.front();
  script.files.pop_front();
  if (path.empty()) return path;
  if (path.find('\\') == std::string::npos) path = initialFolder + "\\" + path;
  if (!defaultExtension.empty() && File::NameOf(path).find('.') == std::string::npos) {
    path += "." + defaultExtension;
  }
  return path;
}

}  // namespace Platform
