// The windows on which every machine proves its promises of windows and controls.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "tests/machine/TestMachine.h"
#include "ui/Forms.h"

// A window with one control of each kind.
class ContractWindow final : public Platform::Form {
 public:
  explicit ContractWindow(const char* title = "Server manager") : Form(FixedText(title)) {
    Servers.OnSelect = [this] { events.push_back("select " + std::to_string(Servers.selected())); };
    Servers.OnDoubleClick = [this] { events.push_back("double click"); };
    Address.OnChange = [this] { events.push_back("change " + Address.text()); };
    Delete.OnClick = [this] { events.push_back("delete"); };
    Submit.OnClick = [this] { events.push_back("submit"); };
    Ccl.OnClick = [this] { events.push_back("cancel"); };
  }

  Platform::Label Explanation{*this, {.text = FixedText("Choose a server.")}};
  Platform::ListBox Servers{*this, {.label = FixedText("&Servers")}};
  Platform::TextBox Address{*this, {.label = FixedText("&Address")}};
  Platform::TextBox Notes{*this,
                          {.label = FixedText("&Notes"), .isReadOnly = true, .isMultiline = true}};
  Platform::Button Delete{*this, {.text = FixedText("&Delete")}};
  Platform::Button Submit{*this, {.text = FixedText("OK"), .isDefault = true}};
  Platform::Button Ccl{*this, {.text = FixedText("Cancel"), .isCancel = true}};

  std::vector<std::string> events;  // what the user did, in order
};

// A tool with a single text box.
class ContractTool final : public Platform::Form {
 public:
  explicit ContractTool(const char* title) : Form(FixedText(title)) {
    OnLoad = [this] { ++loads; };
    OnUnload = [this] { ++unloads; };
  }

  Platform::TextBox Name{*this, {.label = FixedText("&Name")}};
  Platform::Button Submit{*this, {.text = FixedText("OK"), .isDefault = true}};
  int loads = 0;
  int unloads = 0;
};

// The tests of a window with one control of each kind.
class ContractWindowTest : public ContractTest {
 protected:
  using Lines = std::vector<std::string>;

  // The window with three servers, of which the first is selected.
  void OpenWindow() {
    for (const char* row : {"hill.example", "lake.example", "hollow.example"}) {
      window.Servers.Add(row);
    }
    window.Servers.Select(0);
    Platform::StartProgram(window);
  }

  // The events since the last call.
  Lines Events() { return std::exchange(window.events, {}); }

  static Lines Visible() { return TestMachine::VisibleWindows(); }

  ContractWindow window;
};
