#include "e2e/driver/Pack.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>

#include "e2e/driver/Accessibility.h"
#include "e2e/driver/Keyboard.h"
#include "e2e/driver/Picture.h"
#include "e2e/driver/Places.h"
#include "e2e/driver/Wait.h"

namespace E2e {
namespace {

bool HasMenu(const Window& window) {
  return GetMenu(window.handle()) != nullptr;
}

}  // namespace

Pack::Pack(const std::string& programPath) : program_(programPath) {
  AllowSetForegroundWindow(program_.processId());
  WaitForMain();
}

Pack::Pack(const RunningProgram::StartedByOthers& other) : program_(other) {
  WaitForMain();
}

bool Pack::IsInFront(const Window& window) const {
  return window.IsForeground() && window.IsVisible() && window.IsEnabled() &&
         window.processId() == program_.processId() && window.focus().has_value();
}

Window Pack::WaitInFront(const std::string& what, const std::function<bool(const Window&)>& isIt) {
  const Window found = WaitFor<Window>(what + " in front", [&]() -> std::optional<Window> {
    if (!program_.IsRunning()) throw std::runtime_error("the pack ended instead of: " + what);
    const Window front(GetForegroundWindow());
    if (!front.Exists() || !IsInFront(front) || !isIt(front)) return std::nullopt;
    front.WaitUntilDrawn();
    // The keys that were pressed before may have closed it, or opened another one.
    if (!IsInFront(front) || !isIt(front)) return std::nullopt;
    return front;
  });
  Meet(found);
  return found;
}

Window Pack::WaitForMain() {
  return WaitInFront("the main window", HasMenu);
}

Window Pack::WaitForWindow(const std::string& title) {
  return WaitInFront("the window \"" + title + "\"", [&](const Window& window) {
    return !IsBox(window) && window.text() == title;
  });
}

BoxText Pack::WaitForBox() {
  return ReadBox(WaitInFront("a message box", IsBox));
}

BoxText Pack::AnswerBox(const std::string& key) {
  const Window box = WaitInFront("a message box", IsBox);
  const BoxText text = ReadBox(box);
  Keyboard::Press(key);
  WaitUntilGone(box);
  return text;
}

FileDialogDriver Pack::WaitForFileDialog() {
  return FileDialogDriver(WaitInFront("a file dialog", FileDialogDriver::IsFileDialog));
}

void Pack::ChooseFile(const std::string& name) {
  const Window dialog = WaitInFront("a file dialog", FileDialogDriver::IsFileDialog);
  FileDialogDriver(dialog).Choose(name);
  WaitUntilGone(dialog);
}

void Pack::CancelFileDialog() {
  const Window dialog = WaitInFront("a file dialog", FileDialogDriver::IsFileDialog);
  FileDialogDriver(dialog).Cancel();
  WaitUntilGone(dialog);
}

void Pack::ChooseMenu(const std::vector<std::string>& path) {
  ChooseFromMenu(WaitForMain(), path);
}

void Pack::Press(const std::string& keys) {
  WaitInFront("a window of the pack", [](const Window&) { return true; });
  Keyboard::Press(keys);
}

void Pack::TabTo(const std::string& name) {
  const Window front = WaitInFront("a window of the pack", [](const Window&) { return true; });
  const auto start = front.focus();
  auto focus = start;
  while (focus->name() != name) {
    const auto before = focus;
    Keyboard::Press("Tab");
    WaitUntil("the focus moved by Tab", [&] { return (focus = front.focus()) && focus != before; });
    if (focus == start) throw std::runtime_error("Tab does not reach \"" + name + "\"");
  }
}

void Pack::Type(const std::string& text) {
  const Window front = WaitInFront("a window of the pack", [](const Window&) { return true; });
  const Window focus = *front.focus();
  Keyboard::Type(text);
  WaitUntil("\"" + text + "\" typed", [&] { return focus.text().ends_with(text); });
}

void Pack::WaitForRow(const std::string& row) {
  const Window front = WaitInFront("a window of the pack", [](const Window&) { return true; });
  WaitUntil("\"" + row + "\" selected", [&] {
    const auto focus = front.focus();
    return focus && focus->IsClass("ListBox") && focus->selectedRow() == row;
  });
}

void Pack::PressInVain(const std::string& keys) {
  const Window front = WaitInFront("a window of the pack", [](const Window&) { return true; });
  Keyboard::Press(keys);
  // Keys arrive in order: when the next one has had its effect, these have had theirs.
  Keyboard::Press("Alt");
  WaitUntil("the menu bar active", [&] { return IsInMenu(front); });
  Keyboard::Press("Escape");
  WaitUntil("the menu bar left", [&] { return !IsInMenu(front); });
}

void Pack::Meet(const Window& window) {
  const bool isBox = IsBox(window);
  const std::string title = window.text();
  const bool isNew = met_.insert(title + (isBox ? "\n" + ReadBox(window).text : "")).second;
  if (isNew) SavePictureOf(window.rectangle(), title);
  if (FileDialogDriver::IsFileDialog(window)) return;
  for (const std::string& line : LastinglyBroken(window)) {
    told_.insert(line);
    ADD_FAILURE() << line;
  }
}

std::vector<std::string> Pack::LastinglyBroken(const Window& window) const {
  // What has lasted once in this run is not waited for again.
  static std::set<std::string> lasting;
  std::vector<std::string> news;
  ComesTrue([&] {
    news.clear();
    for (const auto& rule : IsBox(window) ? BrokenBoxRules(window) : BrokenRules(window)) {
      const std::string line = "\"" + window.text() + "\" breaks " + rule;
      if (!told_.count(line)) news.push_back(line);
    }
    // The key that was pressed last may just be closing the window.
    if (!window.Exists() || !IsInFront(window)) news.clear();
    return std::all_of(news.begin(), news.end(),
                       [](const std::string& line) { return lasting.count(line) > 0; });
  });
  lasting.insert(news.begin(), news.end());
  return news;
}

void Pack::WaitUntilGone(const Window& window) {
  WaitUntil("\"" + window.text() + "\" gone",
            [&] { return !window.Exists() || !window.IsVisible(); });
}

void SavePictureOf(RECT rectangle, const std::string& words) {
  static std::string lastTest;
  static int number = 0;
  const auto* test = testing::UnitTest::GetInstance()->current_test_info();
  const std::string name = std::string(test->test_suite_name()) + "." + test->name();
  number = name == lastTest ? number + 1 : 1;
  lastTest = name;
  std::string file = name + "-" + std::to_string(number) + "-";
  std::replace(file.begin(), file.end(), '/', '.');
  for (const char c : words) {
    const bool isPlain = std::isalnum(static_cast<unsigned char>(c)) != 0;
    if (isPlain) {
      file += c;
    } else if (file.back() != '-') {
      file += '-';
    }
  }
  while (file.back() == '-') file.pop_back();
  SavePicture(TakePicture(rectangle), Given().pictures + "\\" + file + ".png");
}

}  // namespace E2e
