// That the help tells of every window, every item of the menus and every key, and of no others.
#include <gmock/gmock.h>

#include <algorithm>
#include <set>

#include "help/generator/Pages.h"
#include "help/generator/ProgramWindows.h"
#include "tests/help/HelpFolder.h"

namespace {

using HelpFolder::Matches;
using HelpFolder::Read;
using Platform::Control;

TEST(HelpTables, ArePartOfTheProjectAsTheyAreGenerated) {
  for (const auto& [name, bytes] : Help::Generate(ProjectFile::Root / "help")) {
    EXPECT_EQ(HelpFolder::BytesOf(name), bytes)
        << name << " is made anew by: cmake --build --preset host --target help-pages";
  }
}

TEST(HelpTables, EveryItemOfTheMenuBarHasItsTopic) {
  std::vector<std::string> items, topics;
  for (const Help::ShownItem& item : Help::MenuBar()) {
    if (!item.isMenu) items.push_back(item.path);
  }
  for (const Help::MenuTopic& topic : Help::MenuTopics()) topics.push_back(topic.path);
  EXPECT_EQ(items, topics);
  EXPECT_GE(items.size(), 20U);
}

// Each is also among the windows by the name of its class, so that none is told twice.
TEST(HelpTables, EveryWindowHasItsTopic) {
  const std::set<std::string> bases{"Chooser", "WavOptions", "RecordingWindow"};
  const std::regex window(
      "class (\\w+) (?:final )?: public "
      "(?:Platform::)?(?:Form|Chooser|WavOptions|RecordingWindow)\\b");
  std::set<std::string> windows;
  for (const auto& entry :
       std::filesystem::recursive_directory_iterator(ProjectFile::Root / "src")) {
    if (!entry.is_regular_file() || entry.path().string().find("machine") != std::string::npos) {
      continue;
    }
    const std::string text = ProjectFile::BytesOf(entry.path());
    for (std::sregex_iterator it(text.begin(), text.end(), window), end; it != end; ++it) {
      if (!bases.contains((*it)[1])) windows.insert((*it)[1]);
    }
  }
  std::set<std::string> topics;
  for (const Help::WindowTopic& topic : Help::WindowTopics()) {
    EXPECT_TRUE(topics.insert(topic.form).second) << topic.form;
    int looks = 0;
    Help::Open(topic, [&](const Platform::Form& form) {
      ++looks;
      EXPECT_EQ(Help::ShownIn(form).form, topic.form);
    });
    EXPECT_EQ(looks, 1) << topic.form;
  }
  EXPECT_EQ(topics, windows);
}

std::string NameOf(int code, int shift) {
  std::string name;
  if (shift & Platform::Shift::Ctrl) name += "Ctrl+";
  if (shift & Platform::Shift::Alt) name += "Alt+";
  if (shift & Platform::Shift::Shift) name += "Shift+";
  if (code == Platform::Key::Escape) return name + "Escape";
  if (code == Platform::Key::Space) return name + "Space";
  if (code == Platform::Key::Enter) return name + "Enter";
  if (code >= Platform::Key::F1) return name + "F" + std::to_string(code - Platform::Key::F1 + 1);
  return name + static_cast<char>(code);
}

std::vector<Platform::KeyEvent> KeysToTry() {
  using namespace Platform::Key;
  std::vector<int> codes{Escape, Space, Enter};
  for (int code = '0'; code <= '9'; ++code) codes.push_back(code);
  for (int code = 'A'; code <= 'Z'; ++code) codes.push_back(code);
  for (int code = F1; code < F1 + 12; ++code) codes.push_back(code);
  std::vector<Platform::KeyEvent> keys;
  for (const int code : codes) {
    for (int shift = 0; shift < 8; ++shift) keys.push_back({.code = code, .shift = shift});
  }
  return keys;
}

// Presses keys in an open window, from the first of them on, until it takes one. Returns which it
// was, counted from 0; their number if it takes none.
size_t PressUntilTaken(const Platform::Form& form, const std::vector<Platform::KeyEvent>& keys,
                       size_t first) {
  Simulated::User& user = Simulated::TheMachine().user;
  for (size_t i = first; i < keys.size(); ++i) {
    Platform::KeyEvent key = keys[i];
    // What the key does is not of interest here, only that it is one of the window's.
    user.CancelsFileDialog();
    user.AnswersYes();
    auto handler = form.OnKeyDown;
    handler(key);
    user.script().files.clear();
    user.script().answers.clear();
    if (key.isHandled) return i;
  }
  return keys.size();
}

std::set<std::string> KeysTakenBy(const Help::WindowTopic& topic) {
  const auto keys = KeysToTry();
  std::set<std::string> taken;
  for (size_t next = 0; next < keys.size();) {
    Help::Open(topic, [&](const Platform::Form& form) {
      if (!form.OnKeyDown) {
        next = keys.size();
        return;
      }
      const size_t index = PressUntilTaken(form, keys, next);
      if (index < keys.size()) taken.insert(NameOf(keys[index].code, keys[index].shift));
      next = index + 1;
    });
  }
  return taken;
}

TEST(HelpTables, EveryKeyOfAWindowIsTold) {
  for (const Help::WindowTopic& topic : Help::WindowTopics()) {
    std::set<std::string> told;
    for (const Help::OwnKey& key : topic.ownKeys) told.insert(key.keys);
    if (topic.form == "SK2UtilityPack") {
      // It takes whatever comes with Ctrl alone, so that it reaches nothing else.
      EXPECT_THAT(KeysTakenBy(topic), testing::IsSupersetOf(told));
    } else {
      EXPECT_EQ(KeysTakenBy(topic), told) << topic.form;
    }
  }
}

// The pages that tell what a key does: that the program has it, in the window that the page is of.
TEST(HelpTables, KeysInTheTablesOfOtherPagesAreThoseOfTheProgram) {
  std::map<std::string, std::set<std::string>> keysOfPages;
  for (const Help::WindowTopic& topic : Help::WindowTopics()) {
    auto& keys = keysOfPages[topic.page];
    for (const Help::OwnKey& key : topic.ownKeys) {
      // A caption of a button, where the key does what the button does.
      keys.insert(key.keys + " " + key.what.substr(0, key.what.find(':')));
    }
    Help::Open(topic, [&](const Platform::Form& form) {
      for (const auto& control : Help::ShownIn(form).controls) {
        if (control.accessKey)
          keys.insert(std::string("Alt+") + control.accessKey + " " + control.name);
        if (control.isDefault) keys.insert("Enter " + control.name);
        if (control.isCancel) keys.insert("Escape " + control.name);
      }
    });
  }
  const std::regex row("<tr><td>([^<]*)</td><td><b>([^<]*)</b>");
  int rows = 0;
  for (const auto& [name, page] : HelpFolder::Pages()) {
    if (!keysOfPages.contains(name)) continue;
    for (std::sregex_iterator it(page.begin(), page.end(), row), end; it != end; ++it) {
      const std::regex key("((?:Ctrl\\+|Alt\\+|Shift\\+)*\\w+)(?: or |$)");
      const std::string keys = (*it)[1];
      for (std::sregex_iterator one(keys.begin(), keys.end(), key), last; one != last; ++one) {
        const std::string told = (*one)[1].str() + " " + Read((*it)[2]);
        EXPECT_TRUE(keysOfPages[name].contains(told)) << told << " in " << name;
        ++rows;
      }
    }
  }
  EXPECT_GT(rows, 15);
}

}  // namespace
