// The system's dialogs for choosing a file to open or to save.
#pragma once

#include <string>

namespace Platform {

// One dialog that several tools share. What a tool sets stays for the next.
class FileDialog {
 public:
  enum class Kind { Open, Save };

  explicit FileDialog(Kind kind) : kind_(kind) {}

  std::string title;
  // Description and pattern in pairs, all separated by "|": "Tracks (*.trk)|*.trk".
  std::string filter;
  // Added to a name that is typed without an extension, without its dot; empty for none.
  std::string defaultExtension;
  std::string initialFolder;

  // Shows the dialog over the window in use. Returns the full path that was chosen; empty if it was
  // cancelled. A file to open need not exist: the caller's own message tells. Saving over a file
  // is confirmed by the dialog. Fails with RuntimeError DeviceError if the system cannot show it.
  std::string Show();

  Kind kind() const { return kind_; }

 private:
  Kind kind_;
};

}  // namespace Platform
