// What the native windows say, asked of them alone.
#include <algorithm>
#include <cctype>

#include "tests/machine/RealMachine.h"
#include "tests/machine/RealMachineNames.h"
#include "tests/machine/TestMachine.h"
#include "ui/Controls.h"

namespace TestMachine {

namespace {

std::string ClassOf(HWND window) {
  char name[64] = "";
  GetClassNameA(window, name, sizeof name);
  std::string lower = name;
  for (char& c : lower) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return lower;
}

using NativeNames::HasStyle;

std::string TextOf(HWND window) {
  const auto length = static_cast<size_t>(SendMessageA(window, WM_GETTEXTLENGTH, 0, 0));
  std::string text(length + 1, '\0');
  text.resize(static_cast<size_t>(SendMessageA(window, WM_GETTEXT, static_cast<WPARAM>(text.size()),
                                               reinterpret_cast<LPARAM>(text.data()))));
  return text;
}

std::string RowOf(HWND list, LRESULT row) {
  const auto length =
      static_cast<size_t>(SendMessageA(list, LB_GETTEXTLEN, static_cast<WPARAM>(row), 0));
  std::string text(length + 1, '\0');
  text.resize(static_cast<size_t>(SendMessageA(list, LB_GETTEXT, static_cast<WPARAM>(row),
                                               reinterpret_cast<LPARAM>(text.data()))));
  return text;
}

// The text by which a reader knows a control, as a caption.
std::string CaptionOf(HWND control) {
  const HWND giver = NativeNames::GiverOf(control);
  if (!giver) return {};
  const std::string text = TextOf(giver);
  return NativeNames::MarksAccessKey(giver) ? text : Platform::AsCaption(text);
}

std::string RoleAndState(HWND control) {
  const std::string kind = ClassOf(control);
  if (kind == "button") return ", button";
  if (kind == "edit") {
    std::string heard = ", edit";
    if (HasStyle(control, ES_READONLY)) heard += ", read only";
    const std::string text = TextOf(control);
    if (!text.empty()) heard += ", " + text;
    return heard;
  }
  if (kind == "listbox") {
    const LRESULT count = SendMessageA(control, LB_GETCOUNT, 0, 0);
    const LRESULT selected = SendMessageA(control, LB_GETCURSEL, 0, 0);
    if (count == 0) return ", list, empty";
    if (selected < 0) return ", list, not selected";
    return ", list, " + RowOf(control, selected) + ", " + std::to_string(selected + 1) + " of " +
           std::to_string(count);
  }
  return ", " + kind;
}

std::string HeardOf(HMENU menu) {
  std::string heard;
  for (int i = 0; i < GetMenuItemCount(menu); ++i) {
    char caption[256] = "";
    GetMenuStringA(menu, static_cast<UINT>(i), caption, sizeof caption, MF_BYPOSITION);
    const HMENU submenu = GetSubMenu(menu, i);
    MENUITEMINFOA item{};
    item.cbSize = sizeof item;
    item.fMask = MIIM_STATE;
    GetMenuItemInfoA(menu, static_cast<UINT>(i), TRUE, &item);
    if (!heard.empty()) heard += ',';
    if (item.fState & MFS_DISABLED) heard += "greyed:";
    if (item.fState & MFS_CHECKED) heard += "checked:";
    heard += caption;
    if (submenu) heard += "(" + HeardOf(submenu) + ")";
  }
  return heard;
}

}  // namespace

std::string Hears() {
  RealMachine::Pump();
  const HWND focus = GetFocus();
  if (!focus) return "nothing has the focus";
  if (!HasStyle(focus, WS_CHILD)) return TextOf(focus) + ", window";
  const std::string caption = CaptionOf(focus);
  std::string heard = Platform::WithoutAccessKey(caption) + RoleAndState(focus);
  if (const char key = Platform::AccessKey(caption)) {
    heard +=
        std::string(", Alt+") + static_cast<char>(std::toupper(static_cast<unsigned char>(key)));
  }
  return heard;
}

std::string SelectedText() {
  DWORD from = 0;
  DWORD to = 0;
  SendMessageA(GetFocus(), EM_GETSEL, reinterpret_cast<WPARAM>(&from),
               reinterpret_cast<LPARAM>(&to));
  return TextOf(GetFocus()).substr(from, to - from);
}

std::vector<std::string> VisibleWindows() {
  RealMachine::Pump();
  std::vector<std::string> titles;
  const auto collect = [](HWND window, LPARAM data) -> BOOL {
    if (IsWindowVisible(window)) {
      reinterpret_cast<std::vector<std::string>*>(data)->push_back(TextOf(window));
    }
    return TRUE;
  };
  EnumThreadWindows(GetCurrentThreadId(), collect, reinterpret_cast<LPARAM>(&titles));
  std::sort(titles.begin(), titles.end());
  return titles;
}

std::string ActiveWindow() {
  return TextOf(GetActiveWindow());
}

std::string Menus() {
  const HMENU bar = GetMenu(GetActiveWindow());
  std::string heard;
  for (int i = 0; i < GetMenuItemCount(bar); ++i) {
    char caption[256] = "";
    GetMenuStringA(bar, static_cast<UINT>(i), caption, sizeof caption, MF_BYPOSITION);
    if (!heard.empty()) heard += ' ';
    heard += caption;
    heard += "(" + HeardOf(GetSubMenu(bar, i)) + ")";
  }
  return heard;
}

MessageBoxSeen MessageBoxOnScreen() {
  const HWND box = GetActiveWindow();
  std::string text;
  for (HWND child = GetWindow(box, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
    // The icon is a static without a text.
    if (ClassOf(child) == "static" && !TextOf(child).empty()) text = TextOf(child);
  }
  return {TextOf(box), text};
}

}  // namespace TestMachine
