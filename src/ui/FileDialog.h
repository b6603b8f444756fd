// The system's dialogs for choosing a file to open or to save.
#pragma once

#include <string>

namespace Platform {

// What one use of a dialog needs. Showing it leaves nothing behind for the next use.
class FileDialog {
 public:
  enum class Kind { Open, Save };

  explicit FileDialog(Kind kind) : kind_(kind) {}

  std::string title;
  // The one kind of file that is offered, in words, and its pattern: "Tracks (*.trk)", "*.trk". No
  // character of the words has a meaning to the system.
  std::string fileType;
  std::string pattern;
  // Added to a name that is typed without an extension, without its dot; empty for none.
  std::string defaultExtension;
  // Where the dialog opens, whatever folder the user was in last. Where there is no such folder, or
  // none is named, the system chooses.
  std::string initialFolder;

  // Shows the dialog over the window in use. Returns the full path that was chosen; empty if it was
  // cancelled. A file to open need not exist: the caller's own message tells. Saving under the name
  // of a file that is there is confirmed in the dialog: on No it stays.
  // The program's current folder stays what it was.
  // Fails with RuntimeError DeviceError if the system cannot show it; with PathFileAccess, cause
  // NameNotUsable, at the choice of a path that the program cannot use: too long, or with a
  // character that the code page cannot hold.
  std::string Show() const;

  Kind kind() const { return kind_; }

 private:
  Kind kind_;
};

}  // namespace Platform
