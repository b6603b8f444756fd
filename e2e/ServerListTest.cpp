// The player's list of servers is kept, and a server chosen, with the keyboard alone.
#include "e2e/driver/PackTest.h"

namespace E2e {
namespace {

class ServerList : public PackTest {
 protected:
  void SetUp() override { list_ = PutProgramFolder() + "\\iplist.dat"; }

  const std::string& list() const { return list_; }
  std::string configuration() const { return gameFolder() + "\\Skidrun.cfg"; }

  static Window Open(Pack& pack) {
    pack.ChooseMenu({"Internet", "Select Server"});
    return pack.WaitForWindow("Select Server");
  }
  static std::vector<std::string> Rows(const Window& window) {
    return window.control("IP List:").rows();
  }
  static void WaitForAddress(const Window& window, const std::string& address) {
    const Window box = window.control("IP:");
    WaitUntil("the address \"" + address + "\"", [&] { return box.text() == address; });
  }
  // Nothing is chosen, and the focus is where a server can be.
  static void WaitForNothingChosen(const Window& window) {
    WaitForAddress(window, "");
    EXPECT_EQ(window.control("IP List:").selectedRow(), "");
    WaitUntil("the focus on the list",
              [&] { return window.focus() == window.control("IP List:"); });
  }
  static void Add(Pack& pack, const std::string& address, const std::string& name) {
    pack.TabTo("IP:");
    pack.Press("Ctrl+A");
    pack.Type(address);
    pack.Press("Alt+A");
    pack.WaitForWindow("Name:");
    if (!name.empty()) pack.Type(name);
    pack.Press("Enter");
  }
  static BoxText Added() { return Information("Success", "IP address added to list."); }
  static BoxText DeletionOf(const std::string& address) {
    return Question("Confirm delete",
                    "Are you sure you wish to delete the IP address " + address + "?");
  }

 private:
  std::string list_;
};

TEST_F(ServerList, ServersAreAddedDeletedAndChosen) {
  Pack& pack = StartPack();
  const Window window = Open(pack);
  EXPECT_THAT(Rows(window), testing::IsEmpty());
  WaitForNothingChosen(window);

  Add(pack, "10.0.0.7", "home & garden");
  EXPECT_EQ(pack.AnswerBox(), Added());
  pack.WaitForWindow("Select Server");
  WaitForNothingChosen(window);
  EXPECT_EQ(ReadFile(list()), "home & garden=10.0.0.7\r\n");

  Add(pack, "10.0.0.8", "");
  EXPECT_EQ(pack.AnswerBox(),
            Information("Warning",
                        "No name was associated with this IP address. The IP address will be used "
                        "as the associated name."));
  EXPECT_EQ(pack.AnswerBox(), Added());
  pack.WaitForWindow("Select Server");
  WaitForNothingChosen(window);
  EXPECT_THAT(Rows(window),
              testing::ElementsAre("home & garden (10.0.0.7)", "10.0.0.8 (10.0.0.8)"));

  pack.TabTo("IP:");
  pack.Type("10.0.0.7");
  pack.Press("Alt+A");
  EXPECT_EQ(pack.AnswerBox(),
            Critical("Error", "The IP address you wish to save already exists in your IP list."));
  pack.WaitForWindow("Select Server");

  pack.TabTo("IP List:");
  pack.Press("Down");
  pack.WaitForRow("home & garden (10.0.0.7)");
  WaitForAddress(window, "10.0.0.7");
  pack.Press("Alt+D");
  EXPECT_EQ(pack.AnswerBox("Enter"), DeletionOf("10.0.0.7"));  // No is the default
  pack.WaitForWindow("Select Server");
  WaitForAddress(window, "10.0.0.7");
  pack.Press("Alt+D");
  EXPECT_EQ(pack.AnswerBox("Y"), DeletionOf("10.0.0.7"));
  pack.WaitForWindow("Select Server");
  WaitForNothingChosen(window);
  EXPECT_THAT(Rows(window), testing::ElementsAre("10.0.0.8 (10.0.0.8)"));
  EXPECT_EQ(ReadFile(list()), "10.0.0.8=10.0.0.8\r\n");

  // Where the list had its focus last, the arrow key chooses what it is heard to choose.
  pack.Press("Down");
  pack.WaitForRow("10.0.0.8 (10.0.0.8)");
  WaitForAddress(window, "10.0.0.8");
  pack.Press("Enter");
  EXPECT_EQ(pack.AnswerBox(),
            Information("Success", "IP address 10.0.0.8 will now be used when playing Skidrun2."));
  pack.WaitForMain();
  EXPECT_EQ(ReadFile(configuration()), "Language=English\r\nMultiplayer=10.0.0.8\r\n");
  EXPECT_TRUE(GetFileAttributesA(configuration().c_str()) & FILE_ATTRIBUTE_HIDDEN);
}

TEST_F(ServerList, OnlyServerCannotBeDeleted) {
  WriteFile(list(), "home=10.0.0.7\r\n");
  Pack& pack = StartPack();
  const Window window = Open(pack);
  pack.Press("Down");
  WaitForAddress(window, "10.0.0.7");
  pack.Press("Alt+D");
  EXPECT_EQ(pack.AnswerBox("Y"), DeletionOf("10.0.0.7"));
  EXPECT_EQ(pack.AnswerBox(),
            Critical("Error deleting IP",
                     "There was an error deleting the IP address. The cause of this error is "
                     "unknown."));
  pack.WaitForWindow("Select Server");
  WaitForNothingChosen(window);
  EXPECT_THAT(Rows(window), testing::ElementsAre("home (10.0.0.7)"));
  EXPECT_EQ(ReadFile(list()), "home=10.0.0.7\r\n");
}

TEST_F(ServerList, ClearedRowsStayUntilTheWindowIsOpenedAgain) {
  WriteFile(list(), "home=10.0.0.7\r\naway=10.0.0.8\r\n");
  Pack& pack = StartPack();
  const Window window = Open(pack);
  pack.Press("Alt+C");
  EXPECT_EQ(pack.AnswerBox("Y"), Question("Confirm List Removal",
                                          "Are you sure you wish to completely clear the IP "
                                          "list?"));
  pack.WaitForWindow("Select Server");
  EXPECT_EQ(ReadFile(list()), "");
  EXPECT_EQ(Rows(window).size(), 2U);
  pack.Press("Escape");
  pack.WaitForMain();
  EXPECT_THAT(Rows(Open(pack)), testing::IsEmpty());
}

TEST_F(ServerList, WriteProtectedListIsToldAndKept) {
  WriteFile(list(), "home=10.0.0.7\r\naway=10.0.0.8\r\n");
  SetFileAttributesA(list().c_str(), FILE_ATTRIBUTE_READONLY);
  Pack& pack = StartPack();
  const Window window = Open(pack);
  pack.Press("Down");
  WaitForAddress(window, "10.0.0.7");
  pack.Press("Alt+D");
  EXPECT_EQ(pack.AnswerBox("Y"), DeletionOf("10.0.0.7"));
  EXPECT_EQ(pack.AnswerBox(),
            Critical("Error deleting IP",
                     "There was an error deleting the IP address because the IP list can't "
                     "currently be accessed."));
  pack.WaitForWindow("Select Server");
  Add(pack, "10.0.0.9", "zoo");
  EXPECT_EQ(pack.AnswerBox(),
            Critical("Error", "The file is write-protected or is a folder.\r\nFile: " + list()));
  pack.WaitForWindow("Select Server");
  EXPECT_EQ(ReadFile(list()), "home=10.0.0.7\r\naway=10.0.0.8\r\n");
  SetFileAttributesA(list().c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(ServerList, MissingConfigurationIsToldAndNotMade) {
  WriteFile(list(), "home=10.0.0.7\r\n");
  DeleteFileA(configuration().c_str());
  Pack& pack = StartPack();
  const Window window = Open(pack);
  pack.Press("Down");
  WaitForAddress(window, "10.0.0.7");
  pack.Press("Enter");
  EXPECT_EQ(pack.AnswerBox(),
            Critical("Error", "The file was not found.\r\nFile: " + configuration()));
  pack.WaitForWindow("Select Server");
  WaitForAddress(window, "10.0.0.7");
  EXPECT_FALSE(Exists(configuration()));
  pack.Press("Escape");
  pack.WaitForMain();
}

TEST_F(ServerList, BinaryListDoesNoHarm) {
  std::string bytes;
  for (int i = 0; i < 200000; i++) bytes += static_cast<char>((i * 7919 + i / 251) % 256);
  WriteFile(list(), bytes);
  Pack& pack = StartPack();
  Open(pack);
  pack.Press("Down");
  pack.Press("Escape");
  pack.WaitForMain();
  EXPECT_EQ(ReadFile(list()), bytes);
}

}  // namespace
}  // namespace E2e
