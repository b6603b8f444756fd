// What holds of native windows beside the contracts: what a screen reader and a magnifier find in
// them, and that a window may go away in the middle of its own events.
#include <gmock/gmock.h>

#include <thread>

#include "base/RuntimeError.h"
#include "machine/win32/FormWindow.h"
#include "tests/machine/RealMachine.h"
#include "tests/machine/TestMachine.h"
#include "ui/Forms.h"

bool operator==(const RECT& one, const RECT& other) {
  return EqualRect(&one, &other);
}

namespace {

using namespace Platform;

// A tool with all kinds of controls and captions as long as those of other languages.
struct Tool : Form {
  Tool() : Form(FixedText("Serververwaltung"), {.isResizable = true}) {}
  Label Explanation{*this,
                    {.text = FixedText("Choose the server that the game is to use. The "
                                       "change is stored at once, and holds from the next "
                                       "start of the game.")}};
  ListBox Servers{*this, {.label = FixedText("&Servers")}};
  TextBox Address{*this, {.label = FixedText("&Adresse oder Rechnername des Servers")}};
  TextBox Notes{*this, {.label = FixedText("&Notes"), .isReadOnly = true, .isMultiline = true}};
  Button AddToList{*this, {.text = FixedText("Zur Serverliste &hinzuf\xFCgen")}};
  Button DeleteEntry{*this, {.text = FixedText("Eintrag aus der Liste &l\xF6schen")}};
  Button Submit{*this, {.text = FixedText("OK"), .isDefault = true}};
  Button Ccl{*this, {.text = FixedText("Cancel"), .isCancel = true}};
};

class WindowTest : public ContractTest {
 protected:
  WindowTest() { StartProgram(main); }

  static std::vector<HWND> ChildrenOf(HWND window) {
    std::vector<HWND> children;
    for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
      children.push_back(child);
    }
    return children;
  }
  static std::string ClassOf(HWND window) {
    char name[64] = "";
    GetClassNameA(window, name, sizeof name);
    return name;
  }
  static std::string TextOf(HWND window) {
    char text[512] = "";
    GetWindowTextA(window, text, sizeof text);
    return text;
  }
  static LONG_PTR StyleOf(HWND window) { return GetWindowLongPtrA(window, GWL_STYLE); }
  static RECT PlaceOf(HWND child) {
    RECT rect{};
    GetWindowRect(child, &rect);
    MapWindowPoints(nullptr, GetParent(child), reinterpret_cast<POINT*>(&rect), 2);
    return rect;
  }

  static RECT RectOf(HWND window) {
    RECT rect{};
    GetWindowRect(window, &rect);
    return rect;
  }
  // The window comes to a screen of another density.
  static void ChangeDpi(HWND window, UINT dpi, RECT suggested) {
    SendMessageA(window, WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&suggested));
  }

  static int DefaultButtonsOf(HWND window) {
    int count = 0;
    for (const HWND child : ChildrenOf(window)) {
      const LRESULT code = SendMessageA(child, WM_GETDLGCODE, 0, 0);
      if (ClassOf(child) == "Button" && (code & DLGC_DEFPUSHBUTTON)) ++count;
    }
    return count;
  }

  // Every caption fits where it stands, in the font that its control draws with.
  static void ExpectNothingCut(HWND window) {
    for (const HWND child : ChildrenOf(window)) {
      if (ClassOf(child) != "Static" && ClassOf(child) != "Button") continue;
      RECT place{};
      GetClientRect(child, &place);
      RECT text = place;
      const HDC context = GetDC(child);
      const auto font = reinterpret_cast<HFONT>(SendMessageA(child, WM_GETFONT, 0, 0));
      EXPECT_NE(font, nullptr);
      const HGDIOBJ previous = SelectObject(context, font);
      const UINT breaking = ClassOf(child) == "Static" ? DT_WORDBREAK : DT_SINGLELINE;
      DrawTextA(context, TextOf(child).c_str(), -1, &text, DT_CALCRECT | breaking);
      SelectObject(context, previous);
      ReleaseDC(child, context);
      EXPECT_LE(text.right, place.right) << TextOf(child);
      EXPECT_LE(text.bottom, place.bottom) << TextOf(child);
    }
  }

  static void ExpectReadingOrder(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    RECT before{};
    for (const HWND child : ChildrenOf(window)) {
      const RECT here = PlaceOf(child);
      EXPECT_TRUE(here.top >= before.bottom || here.left >= before.right) << TextOf(child);
      EXPECT_LE(here.right, client.right);
      EXPECT_LE(here.bottom, client.bottom);
      before = here;
    }
  }

  static void OpenAndClose(Form& form) {
    form.Show();
    form.Unload();
    RealMachine::Pump();
  }

  // Those that stand by themselves, shown or not.
  static int WindowsOfThisThread() {
    int count = 0;
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND, LPARAM counter) -> BOOL {
          ++*reinterpret_cast<int*>(counter);
          return TRUE;
        },
        reinterpret_cast<LPARAM>(&count));
    return count;
  }

  Form main{FixedText("Main"), {.isResizable = true, .isDialog = false}};
  Tool tool;
};

TEST_F(WindowTest, ToolsAreDialogsAndTheMainWindowKeepsTheFocusItself) {
  EXPECT_EQ(ClassOf(WindowOf(main)), "SK2PackWindow");
  EXPECT_EQ(GetFocus(), WindowOf(main));
  tool.Show();
  EXPECT_EQ(ClassOf(WindowOf(tool)), "#32770");
  EXPECT_EQ(StyleOf(WindowOf(tool)) & DS_SHELLFONT, DS_SHELLFONT);
}

TEST_F(WindowTest, TheFrameOfAWindowIsWhatItsOptionsSay) {
  constexpr LONG_PTR Frames = WS_SYSMENU | WS_THICKFRAME | WS_MAXIMIZEBOX | WS_MINIMIZEBOX;
  EXPECT_EQ(StyleOf(WindowOf(main)) & Frames, Frames);
  tool.Show();
  EXPECT_EQ(StyleOf(WindowOf(tool)) & Frames, Frames);
  Form plain(FixedText("Plain"));
  plain.Show();
  EXPECT_EQ(StyleOf(WindowOf(plain)) & Frames, WS_SYSMENU | WS_MINIMIZEBOX);
  Form bare(FixedText("Bare"), {.hasMinimizeBox = false});
  bare.Show();
  EXPECT_EQ(StyleOf(WindowOf(bare)) & Frames, WS_SYSMENU);
}

// Screen readers read the labels of real dialogs alone, and speak a name that changes only of what
// has the focus.
TEST_F(WindowTest, AWindowThatOnlySaysSomethingIsADialogWhoseNewTitleIsHeard) {
  Form recording(FixedText("Recording"));
  Label Length(recording, {.text = FixedText("Press Space to stop.")});
  recording.Show();
  const HWND window = WindowOf(recording);
  EXPECT_EQ(ClassOf(window), "#32770");
  EXPECT_EQ(GetFocus(), window);
  ASSERT_EQ(ChildrenOf(window).size(), 1u);
  EXPECT_TRUE(IsWindowVisible(ChildrenOf(window)[0]) && IsWindowEnabled(ChildrenOf(window)[0]));
  ExpectNothingCut(window);
  // The system tells readers of a new title by itself.
  recording.SetTitle("Playing");
  EXPECT_EQ(TextOf(window), "Playing");
  EXPECT_EQ(GetFocus(), window);
}

TEST_F(WindowTest, EachNamedControlFollowsItsLabelAndIsATabStop) {
  tool.Show();
  HWND before = nullptr;
  for (const HWND child : ChildrenOf(WindowOf(tool))) {
    const bool isStatic = ClassOf(child) == "Static";
    EXPECT_EQ((StyleOf(child) & WS_TABSTOP) != 0, !isStatic) << TextOf(child);
    if (!isStatic && ClassOf(child) != "Button") {
      EXPECT_EQ(ClassOf(before), "Static");
      EXPECT_NE(TextOf(before), "");
    }
    before = child;
  }
}

TEST_F(WindowTest, AListScrollsTellsOfItsSelectionAndIsNotSorted) {
  tool.Show();
  const HWND list = FindWindowExA(WindowOf(tool), nullptr, "ListBox", nullptr);
  EXPECT_EQ(StyleOf(list) & (LBS_NOTIFY | LBS_SORT | LBS_OWNERDRAWFIXED), LBS_NOTIFY);
  for (int i = 0; i < 100; ++i) tool.Servers.Add("hill");
  tool.Servers.Add(std::string(500, 'a'));
  RealMachine::Pump();
  EXPECT_GT(SendMessageA(list, LB_GETHORIZONTALEXTENT, 0, 0), 500);
  EXPECT_TRUE(StyleOf(list) & WS_VSCROLL) << "there only while there is something to scroll";
  tool.Servers.Clear();
  RealMachine::Pump();
  EXPECT_EQ(SendMessageA(list, LB_GETHORIZONTALEXTENT, 0, 0), 0);
}

TEST_F(WindowTest, AListCanBeScrolledToTheEndOfItsWidestRow) {
  tool.Show();
  const HWND list = FindWindowExA(WindowOf(tool), nullptr, "ListBox", nullptr);
  const HDC context = GetDC(list);
  const auto font = reinterpret_cast<HFONT>(SendMessageA(list, WM_GETFONT, 0, 0));
  const HGDIOBJ previous = SelectObject(context, font);
  for (const std::string row : {"Hairpin Right on Gravel (5000 units), \"AV\" ~ @", "H\xFCgel"}) {
    SIZE size{};
    GetTextExtentPoint32A(context, row.c_str(), static_cast<int>(row.size()), &size);
    tool.Servers.SetRows({"i", row, ""}, 0);
    EXPECT_EQ(SendMessageA(list, LB_GETHORIZONTALEXTENT, 0, 0),
              size.cx + GetSystemMetrics(SM_CXEDGE) * 2)
        << row;
  }
  SelectObject(context, previous);
  ReleaseDC(list, context);
}

TEST_F(WindowTest, AHiddenListStaysHiddenWhateverBecomesOfItsRows) {
  tool.Show();
  const HWND list = FindWindowExA(WindowOf(tool), nullptr, "ListBox", nullptr);
  tool.Servers.Add("hill");
  tool.Servers.SetVisible(false);
  tool.Servers.Add("lake");
  tool.Servers.SetRows({"moor", "fell", "tarn"}, 1);
  tool.Servers.Remove(2);
  RealMachine::Pump();
  EXPECT_FALSE(IsWindowVisible(list));
  tool.Servers.SetVisible(true);
  EXPECT_TRUE(IsWindowVisible(list));
  tool.Servers.Focus();
  EXPECT_EQ(TestMachine::Hears(), "Servers, list, fell, 2 of 2, Alt+S");
}

TEST_F(WindowTest, ThereIsAlwaysOneDefaultButton) {
  tool.Show();
  for (int i = 0; i < 8; ++i) {
    EXPECT_EQ(DefaultButtonsOf(WindowOf(tool)), 1) << TestMachine::Hears();
    TestMachine::Press("Tab");
  }
  tool.DeleteEntry.Focus();
  EXPECT_EQ(DefaultButtonsOf(WindowOf(tool)), 1);
  tool.Servers.Focus();
  EXPECT_EQ(DefaultButtonsOf(WindowOf(tool)), 1);
  EXPECT_EQ(LOWORD(SendMessageA(WindowOf(tool), DM_GETDEFID, 0, 0)), IDOK);
}

TEST_F(WindowTest, NothingIsCutAndAllIsReadInOrder) {
  tool.Show();
  ExpectNothingCut(WindowOf(tool));
  ExpectReadingOrder(WindowOf(tool));
}

TEST_F(WindowTest, AWindowCannotBeMadeSoSmallThatSomethingIsCut) {
  tool.Show();
  SetWindowPos(WindowOf(tool), nullptr, 0, 0, 50, 50, SWP_NOMOVE | SWP_NOZORDER);
  ExpectNothingCut(WindowOf(tool));
  ExpectReadingOrder(WindowOf(tool));
}

TEST_F(WindowTest, ACaptionThatGrowsMakesTheWindowGrow) {
  tool.Show();
  tool.Submit.SetCaption("A caption that is much longer than the one that was here before it");
  tool.Explanation.SetCaption(std::string(60, 'x') + " " + std::string(60, 'y'));
  ExpectNothingCut(WindowOf(tool));
  ExpectReadingOrder(WindowOf(tool));
}

TEST_F(WindowTest, OnADenserScreenTheWindowIsLaidOutAnew) {
  tool.Show();
  const HWND window = WindowOf(tool);
  const HWND edit = FindWindowExA(window, nullptr, "Edit", nullptr);
  const LONG before = PlaceOf(edit).bottom - PlaceOf(edit).top;
  const UINT dpi = Display::DpiOf(window);
  RECT suggested = RectOf(window);
  suggested.right += suggested.right - suggested.left;
  suggested.bottom += suggested.bottom - suggested.top;
  ChangeDpi(window, 2 * dpi, suggested);
  EXPECT_EQ(RectOf(window).left, suggested.left);
  EXPECT_GE(RectOf(window).right, suggested.right);
  EXPECT_NEAR(PlaceOf(edit).bottom - PlaceOf(edit).top, 2 * before, 4);
  ExpectNothingCut(window);
  ExpectReadingOrder(window);
}

TEST_F(WindowTest, BackOnALessDenseScreenTheWindowIsAsSmallAsItWas) {
  tool.Show();
  const HWND window = WindowOf(tool);
  const RECT before = RectOf(window);
  const UINT dpi = Display::DpiOf(window);
  RECT larger = before;
  larger.right += 300;
  larger.bottom += 300;
  ChangeDpi(window, dpi + dpi / 2, larger);
  ChangeDpi(window, dpi, before);
  EXPECT_EQ(RectOf(window), before);
  ExpectNothingCut(window);
  ExpectReadingOrder(window);
}

TEST_F(WindowTest, AWindowThatFilledTheScreenIsRestoredToItsSize) {
  tool.Show();
  const HWND window = WindowOf(tool);
  const RECT before = RectOf(window);
  ShowWindow(window, SW_MAXIMIZE);
  tool.Submit.SetCaption("Okay");
  SendMessageA(window, WM_SETTINGCHANGE, SPI_SETNONCLIENTMETRICS, 0);
  EXPECT_TRUE(IsZoomed(window));
  ExpectNothingCut(window);
  ShowWindow(window, SW_RESTORE);
  EXPECT_EQ(RectOf(window), before);
  ExpectReadingOrder(window);
}

TEST_F(WindowTest, AWindowGrowsWhenItIsRestoredIfItsTextsHaveGrownMeanwhile) {
  const std::string longer = "A caption that is much longer than the one that was here before it";
  for (const int command : {SW_MAXIMIZE, SW_MINIMIZE}) {
    tool.Unload();
    tool.Show();
    const HWND window = WindowOf(tool);
    ShowWindow(window, command);
    const RECT meanwhile = RectOf(window);
    tool.Submit.SetCaption(longer);
    tool.Ccl.SetCaption(longer + " too");
    EXPECT_EQ(RectOf(window), meanwhile);
    ShowWindow(window, SW_RESTORE);
    RealMachine::Pump();
    ExpectNothingCut(window);
    ExpectReadingOrder(window);
  }
}

TEST_F(WindowTest, AWindowOpensOverTheOneInUse) {
  Tool next;
  tool.Show();
  tool.Leave();
  const auto middleOf = [](HWND window) {
    const RECT rect = RectOf(window);
    return POINT{(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
  };
  const HWND window = WindowOf(main);
  const RECT before = RectOf(window);
  constexpr int Aside = 100;  // so little that the next one has room there
  SetWindowPos(window, nullptr, before.left + Aside, before.top - Aside, 0, 0,
               SWP_NOSIZE | SWP_NOZORDER);
  next.Show();
  EXPECT_NEAR(middleOf(WindowOf(next)).x, middleOf(window).x, 1);
  EXPECT_NEAR(middleOf(WindowOf(next)).y, middleOf(window).y, 1);
}

TEST_F(WindowTest, TheFocusIsWhereItWasWhenTheUserComesBack) {
  tool.Address.SetText("play.example");
  tool.Show();
  tool.Address.Focus();
  TestMachine::Press("End");
  const HWND other =
      CreateWindowExA(0, "STATIC", "Another program", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 100,
                      100, nullptr, nullptr, nullptr, nullptr);
  SetActiveWindow(other);
  tool.Notes.SetText("changed meanwhile");
  EXPECT_EQ(GetActiveWindow(), other);
  SetActiveWindow(WindowOf(tool));
  EXPECT_EQ(TestMachine::Hears(),
            "Adresse oder Rechnername des Servers, edit, play.example, Alt+A");
  EXPECT_EQ(TestMachine::SelectedText(), "") << "not entered by Tab";
  SetActiveWindow(other);
  tool.Ccl.Focus();
  EXPECT_EQ(GetActiveWindow(), other) << "a window behind does not come to the front by itself";
  SetActiveWindow(WindowOf(tool));
  EXPECT_EQ(TestMachine::Hears(), "Cancel, button") << "but follows when it is used again";
  DestroyWindow(other);
}

// The screen is not the tests' alone, least of all where it has only just been brought up.
TEST_F(WindowTest, KeysReachTheWindowEvenIfSomebodyElseHasComeToTheFront) {
  tool.Show();
  tool.Address.Focus();
  TestMachine::Type("a");
  std::thread somebodyElse([] {
    SetForegroundWindow(CreateWindowExA(0, "STATIC", "Another program",
                                        WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 100, 100, nullptr,
                                        nullptr, nullptr, nullptr));
  });
  somebodyElse.join();
  TestMachine::Type("b");
  EXPECT_EQ(tool.Address.text(), "ab");
  EXPECT_EQ(TestMachine::Hears(), "Adresse oder Rechnername des Servers, edit, ab, Alt+A");
}

TEST_F(WindowTest, AWindowMayGoAwayInAnyOfItsEvents) {
  const auto leave = [this] { tool.Unload(); };
  tool.Submit.OnClick = leave;
  tool.Ccl.OnClick = leave;
  tool.Servers.OnSelect = leave;
  tool.Servers.OnDoubleClick = leave;
  tool.Address.OnChange = leave;
  tool.OnKeyDown = [&](KeyEvent& key) {
    if (key.code == Key::Insert || key.shift == Shift::Alt) leave();
  };
  const std::vector<std::function<void()>> ways{
      [] { TestMachine::Press("Enter"); },
      [] { TestMachine::Press("Escape"); },
      [] { TestMachine::Press("Insert"); },
      [] { TestMachine::Press("Alt+C"); },
      [] { TestMachine::ClickButton("OK"); },
      [] { TestMachine::Press("Down"); },
      [] { TestMachine::Type("l"); },
      [this] {
        tool.Servers.OnSelect = nullptr;
        TestMachine::DoubleClickRow("lake");
      },
      [this] {
        tool.Address.Focus();
        TestMachine::Type("x");
      },
      [this] {
        tool.Notes.Focus();
        TestMachine::Press("Escape");
      },
      [] { TestMachine::CloseWindow(); },
  };
  for (size_t i = 0; i < ways.size(); ++i) {
    tool.Servers.Clear();
    tool.Servers.Add("hill");
    tool.Servers.Add("lake");
    tool.Servers.Select(0);
    tool.Show();
    ways[i]();
    EXPECT_FALSE(tool.IsLoaded()) << "way " << i;
    EXPECT_EQ(TestMachine::VisibleWindows(), std::vector<std::string>{"Main"}) << "way " << i;
    EXPECT_EQ(GetFocus(), WindowOf(main)) << "way " << i;
  }
}

TEST_F(WindowTest, ManyWindowsLeaveNoWindowBehind) {
  OpenAndClose(tool);
  const int windows = WindowsOfThisThread();
  EXPECT_GE(windows, 1) << "the main one";
  for (int i = 0; i < 10; ++i) OpenAndClose(tool);
  EXPECT_EQ(WindowsOfThisThread(), windows);
}

TEST_F(WindowTest, AWindowThatCannotBeMadeLeavesNoWindowAndNoMenuBehind) {
  MenuItem Edit(tool, {.text = FixedText("&Edit")});
  MenuItem Copy(Edit, {.text = FixedText("&Copy")});
  OpenAndClose(tool);
  const int windows = WindowsOfThisThread();
  for (const auto thing : {TestMachine::Scarce::Windows, TestMachine::Scarce::Menus}) {
    for (int n = 0;; ++n) {
      TestMachine::Refuse(thing, n);
      bool hasFailed = false;
      try {
        tool.Show();
      } catch (const RuntimeError&) {
        hasFailed = true;
      }
      EXPECT_EQ(hasFailed, TestMachine::HasRefused());
      if (!hasFailed) break;
      EXPECT_FALSE(tool.IsLoaded());
      EXPECT_EQ(WindowsOfThisThread(), windows) << n;
      EXPECT_EQ(GetFocus(), WindowOf(main)) << n;
    }
    tool.Unload();
    RealMachine::Pump();
  }
}

TEST_F(WindowTest, AModalWindowHasACloseBoxAlone) {
  TestMachine::WhenModalWindowOpens([this] {
    const LONG_PTR style = StyleOf(WindowOf(tool));
    EXPECT_EQ(style & (WS_SYSMENU | WS_MINIMIZEBOX | WS_MAXIMIZEBOX), WS_SYSMENU);
    TestMachine::CloseWindow();
  });
  tool.ShowModal();
}

TEST_F(WindowTest, AModalWindowThatGoesAwayGivesTheOwnerBack) {
  TestMachine::WhenModalWindowOpens([this] {
    EXPECT_FALSE(IsWindowEnabled(WindowOf(main)));
    DestroyWindow(WindowOf(tool));
  });
  tool.ShowModal();
  EXPECT_TRUE(IsWindowEnabled(WindowOf(main)));
  EXPECT_EQ(ActiveForm(), &main);
}

TEST_F(WindowTest, ManyWindowsLeaveNoHandlesBehind) {
  OpenAndClose(tool);
  const DWORD objects = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
  const DWORD windows = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
  if (objects == 0 || windows == 0) GTEST_SKIP() << "this system does not count handles";
  for (int i = 0; i < 10; ++i) OpenAndClose(tool);
  EXPECT_LE(GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS), objects + 2);
  EXPECT_LE(GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS), windows + 2);
}

}  // namespace
