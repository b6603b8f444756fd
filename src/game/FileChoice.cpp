#include "game/FileChoice.h"

#include "base/Text.h"
#include "platform/Files.h"
#include "platform/LetterCase.h"
#include "platform/Paths.h"
#include "text/StringTable.h"
#include "ui/Messages.h"

std::string ChooseFile(const FileChoice& choice) {
  // A copy: what one tool sets must not be there for the next.
  Platform::FileDialog dialog = choice.dialog;
  if (choice.title) dialog.title = GetLangString(*choice.title);
  dialog.initialFolder = choice.folder;
  std::string path = dialog.Show();
  if (path.empty()) Messages::Show(choice.noFileText, choice.noFileTitle, choice.noFileIcon);
  return path;
}

bool MayBeWritten(const std::string& path, const std::string& chosen, const LangText& question,
                  const LangText& title) {
  Platform::CheckName(path);
  // Letter case makes no other file: the dialog has asked about this one already.
  const bool isAsChosen = Platform::LowerCase(path) == Platform::LowerCase(chosen);
  if (isAsChosen || !Platform::FileExists(path)) return true;
  return Messages::Ask(GetLangString(question).append(Text::LineEnd) + path, title,
                       Platform::Buttons::YesNoDefaultNo);
}
