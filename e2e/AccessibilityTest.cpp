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

TEST_F(Accessibility, UnlabelledControl) {
  DestroyWindow(nameLabel_);
  EXPECT_THAT(Broken(), Contains(StartsWith("UnlabelledControl")));
}

TEST_F(Accessibility, SharedName) {
  SetWindowTextA(listLabel_, "N&ame:");
  EXPECT_THAT(Broken(), Contains(StartsWith("SharedName")));
}

TEST_F(Accessibility, ButtonWithoutCaption) {
  SetWindowTextA(ok_, "");
  EXPECT_THAT(Broken(), Contains(StartsWith("ButtonWithoutCaption")));
}

TEST_F(Accessibility, NoTitle) {
  SetWindowTextA(window_, "");
  EXPECT_THAT(Broken(), Contains(StartsWith("NoTitle")));
}

TEST_F(Accessibility, ReadingOrderThatIsNotSeen) {
  MoveWindow(cancel_, 10, 170, 200, 24, TRUE);
  EXPECT_THAT(Broken(), Contains(StartsWith("ReadingOrder")));
}

TEST_F(Accessibility, UnheardTextThatIsDisabled) {
  EnableWindow(Add("STATIC", "What this is for", 0, 0, 280), FALSE);
  EXPECT_THAT(Broken(), Contains(StartsWith("UnheardText")));
}

TEST_F(Accessibility, UnheardTextAfterAGroupBox) {
  Add("BUTTON", "Server", BS_GROUPBOX, 0, 280);
  EXPECT_THAT(Broken(), IsEmpty());
  Add("STATIC", "What this is for", 0, 0, 310);
  EXPECT_THAT(Broken(), ElementsAre(StartsWith("UnheardText")));
}

TEST_F(Accessibility, UnreachableText) {
  Add("STATIC", "Time:", 0, 0, 280);
  Add("EDIT", "1 minute", WS_BORDER | ES_READONLY, 103, 310);
  EXPECT_THAT(Broken(), Contains(StartsWith("UnreachableText")));
}

TEST_F(Accessibility, NoDialog) {
  const HWND window = CreateWindowExA(0, "STATIC", "Rules", WS_OVERLAPPEDWINDOW, 40, 40, 400, 400,
                                      nullptr, nullptr, nullptr, nullptr);
  for (const HWND control : {nameLabel_, name_, listLabel_, list_, ok_, cancel_}) {
    SetParent(control, window);
    // The last one becomes the first in order.
    SetWindowPos(control, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
  }
  ShowWindow(window, SW_SHOW);
  SetFocus(name_);
  EXPECT_THAT(BrokenRules(Window(window)), ElementsAre(StartsWith("NoDialog")));
  DestroyWindow(window);
}

TEST_F(Accessibility, TabStopMissing) {
  RemoveStyle(list_, WS_TABSTOP);
  EXPECT_THAT(Broken(), Contains(StartsWith("TabStop")));
}

TEST_F(Accessibility, TabStopAtALabel) {
  AddStyle(nameLabel_, WS_TABSTOP);
  EXPECT_THAT(Broken(), Contains(StartsWith("TabStop")));
}

TEST_F(Accessibility, DefaultButtonThereTwice) {
  SendMessageA(cancel_, BM_SETSTYLE, BS_DEFPUSHBUTTON, TRUE);
  EXPECT_THAT(Broken(), Contains(StartsWith("DefaultButton")));
}

TEST_F(Accessibility, NoEscape) {
  SetWindowLongPtrA(cancel_, GWLP_ID, 500);
  EXPECT_THAT(Broken(), Contains(StartsWith("NoEscape")));
}

TEST_F(Accessibility, SharedAccessKey) {
  SetWindowTextA(ok_, "&Save");
  EXPECT_THAT(Broken(), Contains(StartsWith("SharedAccessKey")));
}

TEST_F(Accessibility, SharedMenuKey) {
  EXPECT_THAT(BrokenMenuRules({{0, "&File", false, false, false},
                               {1, "&New", false, false, false},
                               {1, "&Next", false, false, false}}),
              Contains(StartsWith("SharedMenuKey")));
  EXPECT_THAT(BrokenMenuRules({{0, "&File", false, false, false},
                               {1, "&New", false, false, false},
                               {0, "&Track", false, false, false},
                               {1, "&New", false, false, false}}),
              IsEmpty());
}

TEST_F(Accessibility, UselessFocusOnAListWithoutASelectedRow) {
  SendMessageA(list_, LB_SETCURSEL, static_cast<WPARAM>(-1), 0);
  SetFocus(list_);
  EXPECT_THAT(Broken(), Contains(StartsWith("UselessFocus")));
}

TEST_F(Accessibility, ListWithoutASelectedRowBeforeABoxToTypeIn) {
  SendMessageA(list_, LB_SETCURSEL, static_cast<WPARAM>(-1), 0);
  // The box moves behind the list, with its label before it.
  SetWindowPos(nameLabel_, list_, 10, 195, 200, 24, 0);
  SetWindowPos(name_, nameLabel_, 10, 220, 200, 24, 0);
  MoveWindow(ok_, 10, 250, 200, 24, TRUE);
  MoveWindow(cancel_, 10, 280, 200, 24, TRUE);
  SetFocus(list_);
  EXPECT_THAT(Broken(), IsEmpty());
  SendMessageA(name_, EM_SETREADONLY, TRUE, 0);
  EXPECT_THAT(Broken(), ElementsAre(StartsWith("UselessFocus")));
}

TEST_F(Accessibility, UselessFocusOnADisabledBox) {
  EnableWindow(name_, FALSE);
  EXPECT_THAT(Broken(), Contains(StartsWith("UselessFocus")));
}

TEST_F(Accessibility, UselessFocusOnNothing) {
  SetFocus(nullptr);
  EXPECT_THAT(Broken(), ElementsAre(StartsWith("UselessFocus")));
}

TEST(AccessibilityOfEmptyWindows, FocusNotOnWindow) {
  const HWND window = CreateWindowExA(0, "STATIC", "Recording", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                                      40, 40, 400, 400, nullptr, nullptr, nullptr, nullptr);
  const HWND helper =
      CreateWindowExA(0, "EDIT", "", WS_CHILD, 0, 0, 10, 10, window, nullptr, nullptr, nullptr);
  SetFocus(window);
  EXPECT_THAT(BrokenRules(Window(window)), IsEmpty());
  SetFocus(helper);
  EXPECT_THAT(BrokenRules(Window(window)), ElementsAre(StartsWith("FocusNotOnWindow")));
  DestroyWindow(window);
}

TEST_F(Accessibility, UnusualListThatCannotBeScrolled) {
  for (int i = 0; i < 50; i++) SendMessageA(list_, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>("x"));
  EXPECT_THAT(Broken(), IsEmpty());
  RemoveStyle(list_, WS_VSCROLL);
  EXPECT_THAT(Broken(), ElementsAre(StartsWith("UnusualList")));
}

TEST_F(Accessibility, UnusualListThatTellsNothing) {
  RemoveStyle(list_, LBS_NOTIFY);
  EXPECT_THAT(Broken(), Contains(StartsWith("UnusualList")));
}

TEST_F(Accessibility, CutText) {
  MoveWindow(cancel_, 10, 240, 20, 24, TRUE);
  EXPECT_THAT(Broken(), Contains(StartsWith("CutText")));
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

TEST_F(BoxAccessibility, NoTitle) {
  SetWindowTextA(window_, "");
  EXPECT_THAT(Broken(), ElementsAre(StartsWith("NoTitle")));
}

TEST_F(BoxAccessibility, SwallowedAmpersand) {
  RemoveStyle(text_, SS_NOPREFIX);
  EXPECT_THAT(Broken(), ElementsAre(StartsWith("SwallowedAmpersand")));
}

TEST_F(BoxAccessibility, UselessFocusOnNoButton) {
  SetFocus(Add("EDIT", "", WS_TABSTOP, 101, 100));
  EXPECT_THAT(Broken(), ElementsAre(StartsWith("UselessFocus")));
}

}  // namespace
}  // namespace E2e
