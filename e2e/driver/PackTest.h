// What each test starts from: an installed demo game, and a fresh copy of the pack's program
// folder.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "e2e/driver/InstalledGame.h"
#include "e2e/driver/Pack.h"
#include "e2e/driver/Places.h"
#include "e2e/driver/Wait.h"

namespace E2e {

class PackTest : public testing::Test {
 protected:
  void TearDown() override;

  // Starts the pack from its program folder, which is made if there is none yet.
  Pack& StartPack();
  Pack& RunningPack() { return *pack_; }
  // Makes the program folder before the pack is started.
  //   name     the folder's name; it lies in the scratch folder.
  const std::string& PutProgramFolder(const std::string& name = "SK2Pack");

  // For EXPECT_EQ with what a box shows.
  static BoxText Information(const std::string& title, const std::string& text);
  static BoxText Critical(const std::string& title, const std::string& text);
  static BoxText Question(const std::string& title, const std::string& text);

  const std::string& gameFolder() const { return game_.folder(); }
  const std::string& programFolder() const { return programFolder_; }

  ScratchFolder scratch;

 private:
  InstalledGame game_{scratch.path() + "\\Skidrun2"};
  std::string programFolder_;
  std::unique_ptr<Pack> pack_;
};

}  // namespace E2e
