// What every machine promises of menus. Included once by each machine's tests.
#pragma once

#include <gtest/gtest.h>

#include "tests/machine/TestMachine.h"
#include "ui/Forms.h"

class MenusContract : public ContractTest {
 protected:
  MenusContract() {
    Close.OnClick = [this] { ++closes; };
    One.OnClick = [this] { ++ones; };
    main.OnLoad = [this] { main.TranslateMenu(); };
    Platform::StartProgram(main);
  }

  Platform::Form main{FixedText("Utility Pack")};
  Platform::MenuItem File{main, {.text = FixedText("&File")}};
  Platform::MenuItem Close{File, {.text = FixedText("&Close"), .suffix = " (Alt+F4)"}};
  Platform::MenuItem Help{main, {.text = FixedText("&Help")}};
  Platform::MenuItem Visit{Help, {.text = FixedText("&Visit")}};
  Platform::MenuItem One{Visit, {.text = FixedText("&One")}};
  Platform::MenuItem Two{Visit, {.text = FixedText("&Two")}};
  int closes = 0;
  int ones = 0;
};

TEST_F(MenusContract, AMenuShowsItsItemsInOrder) {
  EXPECT_EQ(TestMachine::Menus(), "&File(&Close (Alt+F4)) &Help(&Visit(&One,greyed:&Two))");
}

TEST_F(MenusContract, AnItemCanBeChecked) {
  One.SetChecked(true);
  EXPECT_EQ(TestMachine::Menus(), "&File(&Close (Alt+F4)) &Help(&Visit(checked:&One,greyed:&Two))");
  One.SetChecked(false);
  EXPECT_EQ(TestMachine::Menus(), "&File(&Close (Alt+F4)) &Help(&Visit(&One,greyed:&Two))");
}

TEST_F(MenusContract, ChoosingAnItemRunsIt) {
  TestMachine::ChooseMenu({"&File", "&Close (Alt+F4)"});
  EXPECT_EQ(closes, 1);
  TestMachine::ChooseMenu({"&Help", "&Visit", "&One"});
  EXPECT_EQ(ones, 1);
  EXPECT_EQ(closes, 1);
}

TEST_F(MenusContract, AnItemActsOnTheRowThatAnotherProgramHasSelected) {
  Platform::Form tool(FixedText("Tool"));
  Platform::ListBox Rows(tool, {.label = FixedText("&Rows")});
  Platform::MenuItem Edit(tool, {.text = FixedText("&Edit")});
  Platform::MenuItem Copy(Edit, {.text = FixedText("&Copy")});
  std::string copied;
  Copy.OnClick = [&] { copied = Rows.row(Rows.selected()); };
  tool.OnLoad = [&] { tool.TranslateMenu(); };
  Rows.SetRows({"hill", "lake"}, 0);
  tool.Show();
  TestMachine::SelectRowUnnoticed(1);
  TestMachine::ChooseMenu({"&Edit", "&Copy"});
  EXPECT_EQ(copied, "lake");
}
