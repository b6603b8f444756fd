#include "platform/FileDialog.h"

#include "platform/win32/System.h"

#include <commdlg.h>

#include <algorithm>
#include <optional>

#include "base/RuntimeError.h"
#include "platform/win32/FormWindow.h"

namespace Platform {

namespace {

// Far longer than any path, so that a choice always fits.
constexpr size_t ResultSize = 32768;

// What the user chose, empty if it was cancelled; nothing if the dialog could not be shown.
std::optional<std::string> Ask(const FileDialog& dialog, const char* folder) {
  std::string filter = dialog.filter;
  std::replace(filter.begin(), filter.end(), '|', '\0');
  filter += '\0';  // a second NUL, after that of c_str, ends the list

  std::string chosen(ResultSize, '\0');
  OPENFILENAMEA choice{};
  choice.lStructSize = sizeof(choice);
  choice.hwndOwner = ActiveWindow();
  choice.lpstrFilter = dialog.filter.empty() ? nullptr : filter.c_str();
  choice.lpstrFile = chosen.data();
  choice.nMaxFile = static_cast<DWORD>(chosen.size());
  choice.lpstrInitialDir = folder;
  choice.lpstrTitle = dialog.title.c_str();
  choice.lpstrDefExt = dialog.defaultExtension.empty() ? nullptr : dialog.defaultExtension.c_str();
  choice.Flags = OFN_EXPLORER | OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_PATHMUSTEXIST;
  const bool isSaving = dialog.kind() == FileDialog::Kind::Save;
  if (isSaving) choice.Flags |= OFN_OVERWRITEPROMPT;

  if (isSaving ? GetSaveFileNameA(&choice) : GetOpenFileNameA(&choice)) return chosen.c_str();
  if (CommDlgExtendedError() == 0) return "";
  return std::nullopt;
}

}  // namespace

std::string FileDialog::Show() {
  if (const auto chosen = Ask(*this, initialFolder.empty() ? nullptr : initialFolder.c_str())) {
    return *chosen;
  }
  // A folder that the system cannot make sense of is no reason to go without the dialog.
  if (const auto chosen = Ask(*this, nullptr)) return *chosen;
  throw RuntimeError(RuntimeError::DeviceError);
}

}  // namespace Platform
