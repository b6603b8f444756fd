#include "ui/FileDialog.h"

#include "machine/win32/Failure.h"
#include "machine/win32/System.h"

#include <commdlg.h>

#include <algorithm>
#include <optional>
#include <utility>

#include "base/RuntimeErrorTexts.h"
#include "machine/win32/CodePage.h"
#include "machine/win32/FormWindow.h"
#include "machine/win32/SystemLibrary.h"
#include "platform/Paths.h"
#include "ui/Stage.h"

namespace Platform {

namespace {

SystemFunction<decltype(::GetOpenFileNameW)> GetOpenFileNameW("comdlg32.dll", "GetOpenFileNameW");
SystemFunction<decltype(::GetSaveFileNameW)> GetSaveFileNameW("comdlg32.dll", "GetSaveFileNameW");
SystemFunction<decltype(::CommDlgExtendedError)> CommDlgExtendedError("comdlg32.dll",
                                                                      "CommDlgExtendedError");

// Far longer than any path, so that a choice always fits.
constexpr size_t ResultSize = 32768;

// Puts the program's current folder back: the dialog moves it to the folder that the user looks at,
// and would keep that folder from being removed.
class CurrentFolderKeeper {
 public:
  CurrentFolderKeeper() : folder_(GetCurrentDirectoryW(0, nullptr), L'\0') {
    folder_.resize(GetCurrentDirectoryW(static_cast<DWORD>(folder_.size()), folder_.data()));
  }
  CurrentFolderKeeper(const CurrentFolderKeeper&) = delete;
  CurrentFolderKeeper& operator=(const CurrentFolderKeeper&) = delete;
  ~CurrentFolderKeeper() { SetCurrentDirectoryW(folder_.c_str()); }

 private:
  std::wstring folder_;
};

// Two texts and the NUL of each, as the system wants a list; another NUL ends it.
std::wstring FilterOf(const FileDialog& dialog) {
  std::wstring filter;
  for (const std::string& text : {dialog.fileType, dialog.pattern}) {
    std::wstring wide = Widen(text);
    std::replace(wide.begin(), wide.end(), L'\0', L' ');
    filter += wide + L'\0';
  }
  return filter;
}

bool IsFolder(const std::wstring& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

// What stands in the box for the name at first: the folder in which to open, and the pattern of the
// files. An initial folder that is passed as such does not do: Windows compares it with the one of
// the first dialog that the program ever showed, and if they are the same, opens where the user
// chose last, perhaps in another game's folder. A folder before the name is obeyed always.
//
// Something must stand behind it. A path that ends in a backslash is refused as no name of a file,
// and a name made up here would be saved under by a careless Enter. The pattern is what a user
// knows from other programs: the box then shows "*.trk" alone, selected, so that typing replaces
// it, and Enter on it lists the files anew, in a dialog for saving too. Wine does all this
// likewise.
std::wstring FirstName(const FileDialog& dialog, const std::wstring& folder) {
  const std::wstring separator = folder.ends_with(L'\\') ? L"" : L"\\";
  return folder + separator + Widen(dialog.pattern.empty() ? "*.*" : dialog.pattern);
}

// What the user chose, empty if it was cancelled; nothing if the dialog could not be shown.
std::optional<std::string> Ask(const FileDialog& dialog, const std::string& folder) {
  const CurrentFolderKeeper keeper;
  const std::wstring title = Widen(dialog.title);
  const std::wstring filter = FilterOf(dialog);
  const std::wstring extension = Widen(dialog.defaultExtension);
  std::wstring chosen(ResultSize, L'\0');
  // A folder that is not there would be taken for a part of the name.
  if (const std::wstring wide = Widen(folder); IsFolder(wide)) {
    FirstName(dialog, wide).copy(chosen.data(), ResultSize - 1);
  }
  // Wide characters: the narrow dialog would give a name that the code page cannot hold as that of
  // another file, with letters that look like the right ones.
  OPENFILENAMEW choice{};
  choice.lStructSize = sizeof(choice);
  choice.hwndOwner = ActiveWindow();
  choice.lpstrFilter = dialog.pattern.empty() ? nullptr : filter.c_str();
  choice.lpstrFile = chosen.data();
  choice.nMaxFile = static_cast<DWORD>(chosen.size());
  choice.lpstrTitle = title.c_str();
  choice.lpstrDefExt = extension.empty() ? nullptr : extension.c_str();
  choice.Flags = OFN_EXPLORER | OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_PATHMUSTEXIST;
  const bool isSaving = dialog.kind() == FileDialog::Kind::Save;
  if (isSaving) choice.Flags |= OFN_OVERWRITEPROMPT;

  if (isSaving ? GetSaveFileNameW(&choice) : GetOpenFileNameW(&choice)) {
    return Narrow(chosen.c_str());
  }
  if (CommDlgExtendedError() == 0) return "";
  return std::nullopt;
}

}  // namespace

std::string FileDialog::Show() const {
  const BoxOverStage box;
  auto chosen = Ask(*this, initialFolder);
  // A folder that the system cannot show, such as one that may not be read, is no reason to go
  // without the dialog.
  if (!chosen) chosen = Ask(*this, "");
  if (!chosen) FailAt(RuntimeErrorTexts.ShowingFileDialog, CommDlgExtendedError());
  // What the code page cannot hold has become "?", so that no other file is meant.
  CheckName(*chosen);
  return *std::move(chosen);
}

}  // namespace Platform
