#include "e2e/driver/FileDialogDriver.h"

#include <dlgs.h>

#include <optional>
#include <stdexcept>

#include "e2e/driver/Keyboard.h"
#include "e2e/driver/Wait.h"

namespace E2e {
namespace {

// The box for the name: an edit of its own, or the one in a combo box of recent names.
std::optional<Window> NameBox(const Window& dialog) {
  for (const int id : {edt1, cmb13}) {
    const HWND control = GetDlgItem(dialog.handle(), id);
    if (!control) continue;
    const Window box(control);
    if (box.IsClass("Edit")) return box;
    if (const HWND edit = FindWindowExA(control, nullptr, "Edit", nullptr)) return Window(edit);
    const HWND combo = FindWindowExA(control, nullptr, "ComboBox", nullptr);
    if (const HWND edit = combo ? FindWindowExA(combo, nullptr, "Edit", nullptr) : nullptr) {
      return Window(edit);
    }
  }
  return std::nullopt;
}

}  // namespace

bool FileDialogDriver::IsFileDialog(const Window& window) {
  return window.IsClass("#32770") && NameBox(window).has_value();
}

std::string FileDialogDriver::fileType() const {
  const HWND types = GetDlgItem(dialog_.handle(), cmb1);
  return types ? Window(types).text() : "";
}

void FileDialogDriver::Choose(const std::string& name) {
  const Window box = WaitForNameBox();
  box.Ask(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(name.c_str()));
  Keyboard::Press("Enter");
}

void FileDialogDriver::Choose(const std::wstring& name) {
  const Window box = WaitForNameBox();
  SendMessageW(box.handle(), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(name.c_str()));
  Keyboard::Press("Enter");
}

Window FileDialogDriver::WaitForNameBox() const {
  const auto box = NameBox(dialog_);
  if (!box) throw std::runtime_error("no file dialog: " + dialog_.text());
  WaitUntil("the focus on the file name", [&] { return dialog_.focus() == box; });
  return *box;
}

void FileDialogDriver::Cancel() {
  Keyboard::Press("Escape");
}

}  // namespace E2e
