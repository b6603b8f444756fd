// The ground of stories about the server list: an installed game and the running pack.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tests/app/PackStory.h"

class ServerStory : public PackStory {
 protected:
  static inline const std::string ListPath = "C:\\Program Files\\SK2Pack\\iplist.dat";
  static inline const std::string Configuration = Game + "\\Skidrun.cfg";
  static inline const std::string Title = "Select Server";

  ServerStory() { StartPack(); }

  void PutServers(std::string_view bytes) { machine.files.Put(ListPath, bytes); }
  std::string Servers() const { return machine.files.Text(ListPath); }

  void OpenList() { user.ChoosesMenu({"Internet", "Select Server"}); }
  void OpenListOn(std::string_view bytes) {
    PutServers(bytes);
    OpenList();
    ASSERT_EQ(user.SeesWindow(), Title);
  }

  // Tabs to the control of that number, counted from 0 in reading order.
  void GoesTo(size_t control) {
    const auto& controls = Platform::ActiveForm()->controls();
    for (size_t i = 0; i < controls.size() && !controls[control]->HasFocus(); ++i) {
      user.Presses("Tab");
    }
  }
  std::string HearsList() {
    GoesTo(0);
    return user.Hears();
  }
  std::string HearsAddress() {
    GoesTo(1);
    return user.Hears();
  }
  // The rows of the open list, whatever is selected.
  std::vector<std::string> Rows() const {
    const auto& list =
        static_cast<const Platform::ListBox&>(*Platform::ActiveForm()->controls().front());
    std::vector<std::string> rows;
    for (int i = 0; i < list.count(); ++i) rows.push_back(list.row(i));
    return rows;
  }

  // Types an address in place of the one that stands there.
  void TypesAddress(const std::string& address) {
    GoesTo(1);
    user.Presses("Ctrl+A");
    user.Presses("Delete");
    user.Types(address);
  }
  void Deletes() {
    user.AnswersYes();
    user.Presses("Alt+D");
  }

  // Nothing is selected, the address is empty, and the focus is on the list: the next button has
  // no row that would be heard.
  void ExpectNothingChosen() {
    EXPECT_EQ(user.Hears(),
              Rows().empty() ? "IP List:, list, empty" : "IP List:, list, not selected");
    EXPECT_EQ(HearsAddress(), "IP:, edit");
    user.Presses("Shift+Tab");
  }
  void ExpectMainWindow() const {
    EXPECT_EQ(Platform::ActiveForm(), &Platform::MainForm());
    EXPECT_TRUE(Platform::MainForm().IsVisible());
  }
};
