// The system's dialogs for opening and saving a file.
#pragma once

#include <string>

#include "e2e/driver/Window.h"

namespace E2e {

class FileDialogDriver {
 public:
  // True if the window is a file dialog that is ready for a name.
  static bool IsFileDialog(const Window& window);

  explicit FileDialogDriver(const Window& dialog) : dialog_(dialog) {}

  std::string title() const { return dialog_.text(); }
  // The kind of file that is offered, as the user reads it: "SK2 Track files (*.trk)".
  std::string fileType() const;

  // Fills in a name, or a path, and presses Enter. A name alone means the folder that is shown.
  void Choose(const std::string& name);
  // The same for a name that the system code page may not have.
  void Choose(const std::wstring& name);
  void Cancel();

 private:
  Window WaitForNameBox() const;

  Window dialog_;
};

}  // namespace E2e
