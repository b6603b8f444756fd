// The rule by which a screen reader names a native control. The contract tests and those of the
// shipped program, which looks at another process, go by it alike.
#pragma once

#include <windows.h>

namespace NativeNames {

inline bool IsClass(HWND window, const char* name) {
  char known[256] = "";
  GetClassNameA(window, known, sizeof known);
  return lstrcmpiA(known, name) == 0;
}

inline bool HasStyle(HWND window, LONG_PTR style) {
  return (GetWindowLongPtrA(window, GWL_STYLE) & style) != 0;
}

// The window whose text is the control's name: a button and a static text name themselves, any
// other control has the name of the visible static text or group box directly before it. Null if
// there is none: the control is nameless.
inline HWND GiverOf(HWND control) {
  if (IsClass(control, "Button") || IsClass(control, "Static")) return control;
  const HWND before = GetWindow(control, GW_HWNDPREV);
  if (!before || !HasStyle(before, WS_VISIBLE)) return nullptr;
  const bool isGroupBox = IsClass(before, "Button") &&
                          (GetWindowLongPtrA(before, GWL_STYLE) & BS_TYPEMASK) == BS_GROUPBOX;
  return IsClass(before, "Static") || isGroupBox ? before : nullptr;
}

// True if "&" marks the access key in that window's text, and is not read; false if it is a
// character like any other.
inline bool MarksAccessKey(HWND giver) {
  return !IsClass(giver, "Static") || !HasStyle(giver, SS_NOPREFIX);
}

}  // namespace NativeNames
