// What every machine promises of downloads. Included once by each machine's tests.
#pragma once

#include <gmock/gmock.h>

#include "platform/Files.h"
#include "platform/Web.h"
#include "tests/ui/ContractWindows.h"

class WebContract : public ContractWindowTest {
 protected:
  static inline const std::string Url = "http://contract.example/pages/one.txt";

  const std::string file = TestMachine::ScratchFolder() + "\\one.tmp";
};

TEST_F(WebContract, APageComesIntoTheFileByteForByte) {
  const std::string page("line\r\nlast\n\0\xFF\x1A", 14);
  TestMachine::Serve(Url, page);
  EXPECT_EQ(Platform::DownloadToFile(Url, file), 0);
  EXPECT_EQ(TestMachine::BytesOf(file), page);
}

TEST_F(WebContract, AnAddressIsAskedForWithAllThatIsInIt) {
  const std::string url = "http://other.example:8080/A%20b/c&d.zip?x=1";
  TestMachine::Serve(url, "page");
  EXPECT_EQ(Platform::DownloadToFile(url, file), 0);
  EXPECT_EQ(TestMachine::BytesOf(file), "page");
}

TEST_F(WebContract, AFileThatIsThereIsReplaced) {
  TestMachine::PutFile(file, "something longer than the page");
  TestMachine::Serve(Url, "page");
  EXPECT_EQ(Platform::DownloadToFile(Url, file), 0);
  EXPECT_EQ(TestMachine::BytesOf(file), "page");
}

TEST_F(WebContract, ALargePageComesWhole) {
  std::string page;
  for (int i = 0; page.size() < 3'000'000; ++i) page += std::to_string(i) + "\r";
  TestMachine::Serve(Url, page);
  EXPECT_EQ(Platform::DownloadToFile(Url, file), 0);
  EXPECT_TRUE(TestMachine::BytesOf(file) == page);
}

TEST_F(WebContract, WithoutAServerItFailsAndBringsNoFile) {
  TestMachine::GoOffline();
  EXPECT_LT(Platform::DownloadToFile(Url, file), 0);
  EXPECT_EQ(TestMachine::BytesOf(file), std::nullopt);
}

// The result is whatever the system says; there is no file, and nothing fails.
TEST_F(WebContract, IntoAMissingFolderNothingComes) {
  TestMachine::Serve(Url, "page");
  const std::string folder = TestMachine::ScratchFolder() + "\\missing";
  EXPECT_NO_THROW(Platform::DownloadToFile(Url, folder + "\\one.tmp"));
  EXPECT_FALSE(Platform::FileExists(folder));
}

TEST_F(WebContract, AFileThatAnotherProgramHoldsStaysAsItIs) {
  TestMachine::PutFile(file, "before");
  TestMachine::Hold(file, TestMachine::Sharing::ForReading);
  TestMachine::Serve(Url, "page");
  EXPECT_NO_THROW(Platform::DownloadToFile(Url, file));
  TestMachine::LetGo(file);
  EXPECT_EQ(TestMachine::BytesOf(file), "before");
}

TEST_F(WebContract, WhatIsNotKeptIsFetchedAnew) {
  TestMachine::Serve(Url, "first");
  Platform::DownloadToFile(Url, file);
  TestMachine::Serve(Url, "second");
  EXPECT_NO_THROW(Platform::DropFromWebCache(Url));
  EXPECT_EQ(Platform::DownloadToFile(Url, file), 0);
  EXPECT_EQ(TestMachine::BytesOf(file), "second");
  EXPECT_EQ(TestMachine::RequestsFor(Url), 2);
}

TEST_F(WebContract, WhatWasNeverKeptMayBeDropped) {
  EXPECT_NO_THROW(Platform::DropFromWebCache("http://contract.example/never"));
  EXPECT_NO_THROW(Platform::DropFromWebCache(""));
}

TEST_F(WebContract, WhatTheUserDoesMeanwhileTakesEffectNeitherThenNorLater) {
  OpenWindow();
  TestMachine::Serve(Url, "page");
  for (const char* key : {"Enter", "Down", "Alt+D", "Escape"}) {
    TestMachine::PressDuringDownload(key);
  }
  TestMachine::CloseDuringDownload();
  EXPECT_EQ(Platform::DownloadToFile(Url, file), 0);
  EXPECT_EQ(Events(), Lines{});
  TestMachine::LetTimeGoBy(50);
  EXPECT_EQ(Events(), Lines{});
  EXPECT_EQ(Visible(), Lines{"Server manager"});
  EXPECT_EQ(TestMachine::Hears(), "Servers, list, hill.example, 1 of 3, Alt+S");
  TestMachine::Press("Enter");
  EXPECT_EQ(Events(), Lines{"submit"}) << "the download is over";
}
