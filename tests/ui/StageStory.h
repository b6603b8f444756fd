// Stories of windows that follow each other on the stage.
#pragma once

#include <string>
#include <vector>

#include "tests/Story.h"
#include "ui/Forms.h"
#include "ui/Timer.h"

// A tool with a text, rows, two buttons and a timer.
class StageTool final : public Platform::Form {
 public:
  explicit StageTool(const char* title) : Form(FixedText(title)) {}

  Platform::TextBox Name{*this, {.label = FixedText("&Name")}};
  Platform::ListBox Rows{*this, {.label = FixedText("&Rows")}};
  Platform::Button Submit{*this, {.text = FixedText("OK"), .isDefault = true}};
  Platform::Button Ccl{*this, {.text = FixedText("Cancel"), .isCancel = true}};
  Platform::Timer Clock{*this, {.milliseconds = 1000}};
};

// The program has started, with a main window in which there is nothing.
class StageStory : public Story {
 protected:
  StageStory() { Platform::StartProgram(main); }

  // The titles of the windows on the screen.
  std::vector<std::string> Screen() const { return machine.screen.Titles(); }

  Platform::Form main{FixedText("Main")};
};
