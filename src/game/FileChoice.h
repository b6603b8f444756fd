// How a tool lets the user choose a file, and whether it may write there.
#pragma once

#include <optional>
#include <string>

#include "base/LangText.h"
#include "ui/FileDialog.h"
#include "ui/MsgBox.h"

// What a tool needs for one choice.
struct FileChoice {
  // One of SharedDialogs. It is not changed.
  const Platform::FileDialog& dialog;
  // In place of the dialog's own title.
  std::optional<LangText> title = std::nullopt;
  // Where the dialog opens, as a full path.
  std::string folder;
  // The box that is shown when no file is chosen.
  LangText noFileText;
  LangText noFileTitle;
  Platform::Icon noFileIcon;
};

// Lets the user choose a file. Returns its full path as it was chosen; it need not exist. If none
// is chosen, tells the user so and returns an empty text. Fails as the dialog does.
std::string ChooseFile(const FileChoice& choice);

// Whether a file to write may stand at the path. The dialog has asked about a file under the name
// that was chosen; where the program has made another name of it, and something stands under that,
// the user is asked with a text, the path below it, and a title. No is the default.
// Fails with PathFileAccess, cause NameNotUsable, if that other name has become too long.
bool MayBeWritten(const std::string& path, const std::string& chosen, const LangText& question,
                  const LangText& title);
