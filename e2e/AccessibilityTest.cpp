// The rules that every window is held to find what they are there for: a window that keeps them all
// is spoiled in one way, and the rule that forbids it speaks up.
#include "e2e/driver/Accessibility.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace E2e {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

// A dialog of this very program.
class OwnDialog : public testing::Test {
 protected:
  OwnDialog()
      : window_(CreateWindowExA(0, "#32770", "Rules", WS_OVERLAPPEDWINDOW, 40, 40, 400, 400,
                                nullptr, nullptr, nullptr, nullptr)) {}
  ~OwnDialog() override { DestroyWindow(window_); }

  HWND Add(const char* className, const char* text, DWORD style, int id, int top, int height = 24) {
    return CreateWindowExA(0, className, text, WS_CHILD | WS_VISIBLE | style, 10, top, 200, height,
                           window_, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr,
                           nullptr);
  }
  static void AddStyle(HWND control, LONG_PTR style) {
    SetWindowLongPtrA(control, GWL_STYLE, GetWindowLongPtrA(control, GWL_STYLE) | style);
  }
  static void RemoveStyle(HWND control, LONG_PTR style) {
    SetWindowLongPtrA(control, GWL_STYLE, GetWindowLongPtrA(control, GWL_STYLE) & ~style);
  }

  HWND window_;
};

// A labelled box, a labelled list with two rows, OK and Cancel.
class Accessibility : public OwnDialog {
 protected:
  void SetUp() override {
    nameLabel_ = Add("STATIC", "&Name:", 0, 0, 10);
    name_ = Add("EDIT", "", WS_TABSTOP | WS_BORDER, 101, 40);
    listLabel_ = Add("STATIC", "&Servers:", 0, 0, 80);
    list_ = Add("LISTBOX", "", WS_TABSTOP | WS_VSCROLL | LBS_NOTIFY, 102, 110, 80);
    ok_ = Add("BUTTON", "OK", WS_TABSTOP | BS_DEFPUSHBUTTON, IDOK, 200);
    cancel_ = Add("BUTTON", "Cancel", WS_TABSTOP, IDCANCEL, 240);
    for (const char* row : {"one", "two"}) {
      SendMessageA(list_, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(row));
    }
    SendMessageA(list_, LB_SETCURSEL, 0, 0);
    ShowWindow(window_, SW_SHOW);
    SetFocus(name_);
  }

  std::vector<std::string> Broken() const { return BrokenRules(Window(window_)); }

  HWND nameLabel_ = nullptr;
  HWND name_ = nullptr;
  HWND listLabel_ = nullptr;
  HWND list_ = nullptr;
  HWND ok_ = nullptr;
  HWND cancel_ = nullptr;
};

TEST_F(Accessibility, GoodWindowBreaksNothing) {
  EXPECT_THAT(Broken(), IsEmpty());
}

TEST_F(Accessibility, N1BoxWithoutALabel) {
  DestroyWindow(nameLabel_);
  EXPECT_THAT(Broken(), Contains(StartsWith("N1")));
}

TEST_F(Accessibility, N2TwoOfOneName) {
  SetWindowTextA(listLabel_, "N&ame:");
  EXPECT_THAT(Broken(), Contains(StartsWith("N2")));
}

TEST_F(Accessibility, N3ButtonWithoutACaption) {
  SetWindowTextA(ok_, "");
  EXPECT_THAT(Broken(), Contains(StartsWith("N3")));
}

TEST_F(Accessibility, N4WindowWithoutATitle) {
  SetWindowTextA(window_, "");
  EXPECT_THAT(Broken(), Contains(StartsWith("N4")));
}

TEST_F(Accessibility, N5OrderThatIsNotSeen) {
  MoveWindow(cancel_, 10, 170, 200, 24, TRUE);
  EXPECT_THAT(Broken(), Contains(StartsWith("N5")));
}

TEST_F(Accessibility, N6DisabledText) {
  EnableWindow(Add("STATIC", "What this is for", 0, 0, 280), FALSE);
  EXPECT_THAT(Broken(), Contains(StartsWith("N6")));
}

TEST_F(Accessibility, N6TextAfterAGroupBox) {
  Add("BUTTON", "Server", BS_GROUPBOX, 0, 280);
  EXPECT_THAT(Broken(), IsEmpty());
  Add("STATIC", "What this is for", 0, 0, 310);
  EXPECT_THAT(Broken(), ElementsAre(StartsWith("N6")));
}

TEST_F(Accessibility, N8ReadOnlyTextWithoutATabStop) {
  Add("STATIC", "Time:", 0, 0, 280);
  Add("EDIT", "1 minute", WS_BORDER | ES_READONLY, 103, 310);
  EXPECT_THAT(Broken(), Contains(StartsWith("N8")));
}

TEST_F(Accessibility, K1WindowThatIsNoDialog) {
  const HWND window = CreateWindowExA(0, "STATIC", "Rules", WS_OVERLAPPEDWINDOW, 40, 40, 400, 400,
                                      nullptr, nullptr, nullptr, nullptr);
  for (const HWND control : {nameLabel_, name_, listLabel_, list_, ok_, cancel_}) {
    SetParent(control, window);
    // The last one becomes the first in order.
    SetWindowPos(control, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
  }
  ShowWindow(window, SW_SHOW);
  SetFocus(name_);
  EXPECT_THAT(BrokenRules(Window(window)), ElementsAre(StartsWith("K1")));
  DestroyWindow(window);
}

TEST_F(Accessibility, K2ControlWithoutATabStop) {
  RemoveStyle(list_, WS_TABSTOP);
  EXPECT_THAT(Broken(), Contains(StartsWith("K2")));
}

TEST_F(Accessibility, K2TabStopAtALabel) {
  AddStyle(nameLabel_, WS_TABSTOP);
  EXPECT_THAT(Broken(), Contains(StartsWith("K2")));
}

TEST_F(Accessibility, K3TwoDefaultButtons) {
  SendMessageA(cancel_, BM_SETSTYLE, BS_DEFPUSHBUTTON, TRUE);
  EXPECT_THAT(Broken(), Contains(StartsWith("K3")));
}

TEST_F(Accessibility, K4NothingForEscape) {
  SetWindowLongPtrA(cancel_, GWLP_ID, 500);
  EXPECT_THAT(Broken(), Contains(StartsWith("K4")));
}

TEST_F(Accessibility, K5SharedAccessKey) {
  SetWindowTextA(ok_, "&Save");
  EXPECT_THAT(Broken(), Contains(StartsWith("K5")));
}

TEST_F(Accessibility, K7SharedAccessKeyInAMenu) {
  EXPECT_THAT(BrokenMenuRules({{0, "&File", false, false, false},
                               {1, "&New", false, false, false},
                               {1, "&Next", false, false, false}}),
              Contains(StartsWith("K7")));
  EXPECT_THAT(BrokenMenuRules({{0, "&File", false, false, false},
                               {1, "&New", false, false, false},
                               {0, "&Track", false, false, false},
                               {1, "&New", false, false, false}}),
              IsEmpty());
}

TEST_F(Accessibility, F1NoRowSelectedInTheFocusedList) {
  SendMessageA(list_, LB_SETCURSEL, static_cast<WPARAM>(-1), 0);
  SetFocus(list_);
  EXPECT_THAT(Broken(), Contains(StartsWith("F1")));
}

TEST_F(Accessibility, F1FocusedBoxDisabled) {
  EnableWindow(name_, FALSE);
  EXPECT_THAT(Broken(), Contains(StartsWith("F1")));
}

TEST_F(Accessibility, F1NothingHasTheFocus) {
  SetFocus(nullptr);
  EXPECT_THAT(Broken(), ElementsAre(StartsWith("F1")));
}

TEST(AccessibilityOfEmptyWindows, F6WindowWithoutTheFocus) {
  const HWND window = CreateWindowExA(0, "STATIC", "Recording", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                                      40, 40, 400, 400, nullptr, nullptr, nullptr, nullptr);
  const HWND helper =
      CreateWindowExA(0, "EDIT", "", WS_CHILD, 0, 0, 10, 10, window, nullptr, nullptr, nullptr);
  SetFocus(window);
  EXPECT_THAT(BrokenRules(Window(window)), IsEmpty());
  SetFocus(helper);
  EXPECT_THAT(BrokenRules(Window(window)), ElementsAre(StartsWith("F6")));
  DestroyWindow(window);
}

TEST_F(Accessibility, L1ListThatCannotBeScrolled) {
  for (int i = 0; i < 50; i++) SendMessageA(list_, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>("x"));
  EXPECT_THAT(Broken(), IsEmpty());
  RemoveStyle(list_, WS_VSCROLL);
  EXPECT_THAT(Broken(), ElementsAre(StartsWith("L1")));
}

TEST_F(Accessibility, L1ListThatTellsNothing) {
  RemoveStyle(list_, LBS_NOTIFY);
  EXPECT_THAT(Broken(), Contains(StartsWith("L1")));
}

TEST_F(Accessibility, V3CutCaption) {
  MoveWindow(cancel_, 10, 240, 20, 24, TRUE);
  EXPECT_THAT(Broken(), Contains(StartsWith("V3")));
}

// A text and OK, as in a message box.
class BoxAccessibility : public OwnDialog {
 protected:
  void SetUp() override {
    text_ = Add("STATIC", "Tools & Toys", SS_NOPREFIX, 0, 10);
    ok_ = Add("BUTTON", "OK", WS_TABSTOP | BS_DEFPUSHBUTTON, IDOK, 60);
    ShowWindow(window_, SW_SHOW);
    SetFocus(ok_);
  }

  std::vector<std::string> Broken() const { return BrokenBoxRules(Window(window_)); }

  HWND text_ = nullptr;
  HWND ok_ = nullptr;
};

TEST_F(BoxAccessibility, GoodBoxBreaksNothing) {
  EXPECT_THAT(Broken(), IsEmpty());
}

TEST_F(BoxAccessibility, N4BoxWithoutATitle) {
  SetWindowTextA(window_, "");
  EXPECT_THAT(Broken(), ElementsAre(StartsWith("N4")));
}

TEST_F(BoxAccessibility, N7SwallowedAmpersand) {
  RemoveStyle(text_, SS_NOPREFIX);
  EXPECT_THAT(Broken(), ElementsAre(StartsWith("N7")));
}

TEST_F(BoxAccessibility, F1NoButtonHasTheFocus) {
  SetFocus(Add("EDIT", "", WS_TABSTOP, 101, 100));
  EXPECT_THAT(Broken(), ElementsAre(StartsWith("F1")));
}

}  // namespace
}  // namespace E2e
