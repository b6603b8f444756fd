#include "e2e/driver/Accessibility.h"

#include <algorithm>
#include <map>
#include <set>

namespace E2e {
namespace {

enum class Role { Label, GroupBox, Button, Field, Other };

struct Control {
  Window window;
  Role role;
  LONG_PTR style;
  RECT at;
  std::string text;
  std::string name;
};

Role RoleOf(const Window& window) {
  if (window.IsClass("Static")) return Role::Label;
  if (window.IsClass("Button")) {
    return (window.style() & BS_TYPEMASK) == BS_GROUPBOX ? Role::GroupBox : Role::Button;
  }
  for (const char* field : {"Edit", "ListBox", "ComboBox", "SysListView32", "SysTreeView32",
                            "msctls_trackbar32", "msctls_progress32"}) {
    if (window.IsClass(field)) return Role::Field;
  }
  return Role::Other;
}

std::vector<Control> VisibleControls(const Window& window) {
  std::vector<Control> controls;
  for (const Window& child : window.children()) {
    if (!child.IsVisible()) continue;
    const Role role = RoleOf(child);
    const bool hasName = role != Role::GroupBox && role != Role::Other;
    controls.push_back(
        {child, role, child.style(), child.rectangle(), child.text(), hasName ? child.name() : ""});
  }
  return controls;
}

bool IsDefaultButton(const Control& control) {
  return control.role == Role::Button && (control.style & BS_TYPEMASK) == BS_DEFPUSHBUTTON;
}

bool IsInteractive(const Control& control) {
  return control.role == Role::Button || control.role == Role::Field;
}

class Report {
 public:
  void Add(const std::string& rule, const std::string& what) {
    lines_.push_back(rule + ": " + what);
  }
  std::vector<std::string> lines() const { return lines_; }

 private:
  std::vector<std::string> lines_;
};

void CheckNames(const std::vector<Control>& controls, Report& report) {
  std::set<std::string> names;
  for (const Control& control : controls) {
    if (!IsInteractive(control)) continue;
    if (control.name.empty()) {
      report.Add(control.role == Role::Button ? "ButtonWithoutCaption" : "UnlabelledControl",
                 control.window.className() + " without a name");
    } else if (!names.insert(control.name).second) {
      report.Add("SharedName", "two controls named \"" + control.name + "\"");
    }
  }
}

void CheckReadingOrder(const std::vector<Control>& controls, Report& report) {
  for (size_t i = 1; i < controls.size(); i++) {
    const RECT& one = controls[i - 1].at;
    const RECT& next = controls[i].at;
    const bool isOnSameLine = next.top < one.bottom && one.top < next.bottom;
    const bool isRight = isOnSameLine ? next.left >= one.right : next.top >= one.bottom;
    if (!isRight) {
      report.Add("ReadingOrder", "\"" + controls[i].name + "\" does not follow \"" +
                                     controls[i - 1].name + "\" on the screen");
    }
  }
}

void CheckTexts(const std::vector<Control>& controls, Report& report) {
  for (size_t i = 0; i < controls.size(); i++) {
    const Control& control = controls[i];
    if (control.role != Role::Label || control.text.empty()) continue;
    const bool namesNext = i + 1 < controls.size() && controls[i + 1].role == Role::Field;
    const bool isOwnerEnabled = !namesNext || controls[i + 1].window.IsEnabled();
    if (!control.window.IsEnabled() && isOwnerEnabled) {
      report.Add("UnheardText", "disabled text \"" + control.text + "\"");
    }
    if (!namesNext && i > 0 && controls[i - 1].role == Role::GroupBox) {
      report.Add("UnheardText", "text after a group box \"" + control.text + "\"");
    }
  }
}

void CheckTabStops(const std::vector<Control>& controls, Report& report) {
  for (const Control& control : controls) {
    const bool isStop = (control.style & WS_TABSTOP) != 0;
    if (IsInteractive(control) && !isStop) {
      const bool isReadOnly = control.window.IsClass("Edit") && (control.style & ES_READONLY) != 0;
      report.Add(isReadOnly ? "UnreachableText" : "TabStop",
                 "no tab stop at \"" + control.name + "\"");
    }
    if (control.role == Role::Label && isStop) {
      report.Add("TabStop", "tab stop at the text \"" + control.text + "\"");
    }
  }
}

void CheckButtons(const Window& window, const std::vector<Control>& controls, Report& report) {
  const auto buttons = std::count_if(controls.begin(), controls.end(), [](const Control& control) {
    return control.role == Role::Button;
  });
  if (!buttons) return;
  const auto defaults = std::count_if(controls.begin(), controls.end(), IsDefaultButton);
  if (defaults != 1) report.Add("DefaultButton", std::to_string(defaults) + " default buttons");
  if (!GetDlgItem(window.handle(), IDCANCEL)) report.Add("NoEscape", "no button for Escape");
}

void CheckAccessKeys(const std::vector<Control>& controls, Report& report) {
  std::map<char, std::string> owners;
  for (const Control& control : controls) {
    if (control.role == Role::Field || !control.window.IsEnabled()) continue;
    const char key = AccessKey(control.text);
    if (!key) continue;
    const auto [owner, isFirst] = owners.emplace(key, control.text);
    if (!isFirst) {
      report.Add("SharedAccessKey", std::string("Alt+") + key + " for both \"" + owner->second +
                                        "\" and \"" + control.text + "\"");
    }
  }
}

// True if a box to type in stands behind the list: the buttons act on what is in there, and a row
// that was heard as selected without having been chosen would have nothing to do with it.
bool IsChosenIntoABox(const std::vector<Control>& controls, const Window& list) {
  auto next = std::find_if(controls.begin(), controls.end(),
                           [&](const Control& control) { return control.window == list; });
  if (next != controls.end()) next = std::find_if(next + 1, controls.end(), IsInteractive);
  return next != controls.end() && next->window.IsClass("Edit") && !(next->style & ES_READONLY);
}

void CheckFocus(const Window& window, const std::vector<Control>& controls, Report& report) {
  const auto focus = window.focus();
  const bool isEmpty = std::none_of(controls.begin(), controls.end(), IsInteractive);
  if (!focus) {
    report.Add("UselessFocus", "nothing has the focus");
  } else if (isEmpty) {
    if (!(*focus == window)) report.Add("FocusNotOnWindow", "the window itself has not the focus");
  } else if (!IsChild(window.handle(), focus->handle()) || !focus->IsVisible() ||
             !focus->IsEnabled()) {
    report.Add("UselessFocus", "the focus is on no usable control, but on " + focus->className());
  } else if (focus->IsClass("ListBox") && focus->Ask(LB_GETCOUNT).value_or(0) > 0 &&
             focus->Ask(LB_GETCURSEL).value_or(-1) < 0 && !IsChosenIntoABox(controls, *focus)) {
    report.Add("UselessFocus", "the list \"" + focus->name() + "\" has rows, but none is selected");
  }
}

void CheckLists(const std::vector<Control>& controls, Report& report) {
  for (const Control& control : controls) {
    if (!control.window.IsClass("ListBox")) continue;
    const bool isDrawn = (control.style & (LBS_OWNERDRAWFIXED | LBS_OWNERDRAWVARIABLE)) != 0;
    if (isDrawn || !(control.style & LBS_NOTIFY)) {
      report.Add("UnusualList", "the list \"" + control.name + "\" is not the system's plain list");
    }
    // A list takes its scroll bar away while all rows are in sight.
    const LRESULT height = control.window.Ask(LB_GETCOUNT).value_or(0) *
                           control.window.Ask(LB_GETITEMHEIGHT).value_or(0);
    if (height > control.window.clientSize().bottom && !(control.style & WS_VSCROLL)) {
      report.Add("UnusualList", "the list \"" + control.name + "\" cannot be scrolled");
    }
  }
}

// The size that a text needs in the system's message font, in which windows are drawn.
SIZE SizeOf(const std::string& text, int width, UINT format) {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  SystemParametersInfoForDpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, DrawnDpi());
  const HDC screen = GetDC(nullptr);
  const HFONT font = CreateFontIndirectW(&metrics.lfMessageFont);
  const HGDIOBJ before = SelectObject(screen, font);
  RECT box{0, 0, width, 0};
  DrawTextA(screen, text.c_str(), -1, &box, DT_CALCRECT | format);
  SelectObject(screen, before);
  DeleteObject(font);
  ReleaseDC(nullptr, screen);
  return {box.right, box.bottom};
}

void CheckCutTexts(const std::vector<Control>& controls, Report& report) {
  for (const Control& control : controls) {
    if (control.role != Role::Label && control.role != Role::Button) continue;
    const int width = control.at.right - control.at.left;
    const int height = control.at.bottom - control.at.top;
    const UINT wrap = control.role == Role::Label ? static_cast<UINT>(DT_WORDBREAK) : 0U;
    const SIZE size = SizeOf(control.text, width, wrap);
    if (size.cx > width || size.cy > height) {
      report.Add("CutText", "\"" + control.text + "\" is cut");
    }
  }
}

}  // namespace

UINT& DrawnDpi() {
  static UINT dpi = GetDpiForSystem();
  return dpi;
}

std::vector<std::string> BrokenRules(const Window& window) {
  Report report;
  const std::vector<Control> controls = VisibleControls(window);
  if (window.text().empty()) report.Add("NoTitle", "no title");
  const bool hasControls = std::any_of(controls.begin(), controls.end(), IsInteractive);
  if (hasControls && !window.IsClass("#32770")) {
    report.Add("NoDialog", "no dialog, but " + window.className());
  }
  CheckNames(controls, report);
  CheckReadingOrder(controls, report);
  CheckTexts(controls, report);
  CheckTabStops(controls, report);
  CheckButtons(window, controls, report);
  CheckAccessKeys(controls, report);
  CheckFocus(window, controls, report);
  CheckLists(controls, report);
  CheckCutTexts(controls, report);
  std::vector<std::string> lines = report.lines();
  for (const std::string& line : BrokenMenuRules(ReadMenu(window))) lines.push_back(line);
  return lines;
}

std::vector<std::string> BrokenBoxRules(const Window& box) {
  Report report;
  if (box.text().empty()) report.Add("NoTitle", "no title");
  if (const auto focus = box.focus(); !focus || !focus->IsClass("Button")) {
    report.Add("UselessFocus", "the focus is on no button");
  }
  for (const Window& text : box.controls("Static")) {
    const bool isShownWhole = (text.style() & SS_NOPREFIX) != 0;
    if (!isShownWhole && text.text().find('&') != std::string::npos) {
      report.Add("SwallowedAmpersand", "\"" + text.text() + "\" loses its \"&\"");
    }
  }
  return report.lines();
}

std::vector<std::string> BrokenMenuRules(const std::vector<MenuLine>& lines) {
  Report report;
  // The access keys met so far, for each level that is open.
  std::vector<std::map<char, std::string>> levels;
  for (const MenuLine& line : lines) {
    levels.resize(static_cast<size_t>(line.depth) + 1);
    const char key = AccessKey(line.caption);
    if (!key) continue;
    const auto [owner, isFirst] = levels.back().emplace(key, line.caption);
    if (!isFirst) {
      report.Add("SharedMenuKey", std::string(1, key) + " for both \"" + owner->second +
                                      "\" and \"" + line.caption + "\"");
    }
  }
  return report.lines();
}

}  // namespace E2e
