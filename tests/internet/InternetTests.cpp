// Downloads, the probe and the public address.
#include "internet/Internet.h"

#include "base/RuntimeError.h"
#include "internet/TemporaryFile.h"
#include "tests/internet/InternetStory.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class InternetHelpersStory : public InternetStory {
 protected:
  const std::string page = Server + "/page";
  const std::string target = Pack + "page.tmp";
};

TEST_F(InternetHelpersStory, ADownloadThatEndsWithExactlyZeroIsASuccess) {
  machine.web.Serve(page, "bytes");
  EXPECT_TRUE(Internet::DownloadURLToFile(page, target, true));
  EXPECT_EQ(machine.files.Text(target), "bytes");
  EXPECT_THAT(machine.web.Downloads(), ElementsAre(page));
  EXPECT_THAT(machine.web.Dropped(), IsEmpty());
  for (const int32_t result : {1, -1, Simulated::Web::NotFound}) {
    machine.web.Answer(page, {result, "bytes"});
    EXPECT_FALSE(Internet::DownloadURLToFile(page, target, true)) << result;
  }
}

TEST_F(InternetHelpersStory, TheCopyOfTheSystemIsUsedOrDroppedAsAsked) {
  machine.web.Serve(page, "new");
  machine.web.KeepInCache(page, "old");
  EXPECT_TRUE(Internet::DownloadURLToFile(page, target, true));
  EXPECT_EQ(machine.files.Text(target), "old");
  EXPECT_TRUE(Internet::DownloadURLToFile(page, target, false));
  EXPECT_EQ(machine.files.Text(target), "new");
  EXPECT_THAT(machine.web.Dropped(), ElementsAre(page));
}

TEST_F(InternetHelpersStory, WhatStoodThereIsNeverTakenForWhatHasCome) {
  machine.files.Put(target, "old");
  machine.web.Answer(page, {0, {}});
  EXPECT_TRUE(Internet::DownloadURLToFile(page, target, true)) << "so the system says";
  EXPECT_FALSE(machine.files.Exists(target));
}

TEST_F(InternetHelpersStory, WhatCannotBeRemovedIsNotFetchedAnew) {
  machine.files.Put(target, "old");
  machine.files.Hold(target);
  machine.web.Serve(page, "new");
  EXPECT_FALSE(Internet::DownloadURLToFile(page, target, true));
  EXPECT_THAT(machine.web.Downloads(), IsEmpty());
  machine.files.Release(target);
}

TEST_F(InternetHelpersStory, TheProbeTakesAnAddressAsItIsMeant) {
  const std::vector<std::pair<std::string, std::string>> addresses = {
      {"Dir\\Sub\\File.EXE", "http://dir/sub/file.exe"},
      {"HTTP://x/y", "http://HTTP://x/y"},
      {"http://Host/A", "http://Host/A"},
      {"User@Host\\A", "http://User@Host\\A"},
      {"Host:80\\A", "http://Host:80\\A"},
      {"https://x/y", "http://https://x/y"},
      {"\xC4/B", "http://\xE4/b"},
      {"", "http://"}};
  for (const auto& [given, asked] : addresses) {
    machine.web.Serve(asked, "there");
    EXPECT_TRUE(Internet::URLExists(given)) << given;
    EXPECT_EQ(machine.web.Downloads().back(), asked);
    EXPECT_FALSE(machine.files.Exists(Pack + "ueft.tmp"));
  }
}

TEST_F(InternetHelpersStory, TheProbeOfWhatIsNotThereIsFalse) {
  EXPECT_FALSE(Internet::URLExists(page));
  machine.web.Answer(page, {0, {}});
  EXPECT_FALSE(Internet::URLExists(page)) << "a success without a file";
}

TEST_F(InternetHelpersStory, WhatAFailedProbeHasLeftStaysUntilTheNextOne) {
  machine.web.Answer(page, {Simulated::Web::NotFound, "half"});
  EXPECT_FALSE(Internet::URLExists(page));
  EXPECT_EQ(machine.files.Text(Pack + "ueft.tmp"), "half");
  machine.web.Answer(page, {0, {}});
  EXPECT_FALSE(Internet::URLExists(page)) << "what an earlier one has left proves nothing";
  EXPECT_FALSE(machine.files.Exists(Pack + "ueft.tmp"));
}

TEST_F(InternetHelpersStory, ThePublicAddressIsThatOfThePage) {
  EXPECT_EQ(Internet::GetPublicIP(), "203.0.113.7");
  EXPECT_TRUE(Internet::IsInternetConnected());
  EXPECT_FALSE(machine.files.Exists(Pack + "read.tmp"));
}

TEST_F(InternetHelpersStory, ThePageIsFetchedAnewEachTime) {
  machine.web.KeepInCache(AddressPage, PageWith("1", "2", "3", "4"));
  EXPECT_EQ(Internet::GetPublicIP(), "203.0.113.7");
  machine.web.Serve(AddressPage, PageWith("5", "6", "7", "8"));
  machine.web.KeepInCache(AddressPage, PageWith("1", "2", "3", "4"));
  EXPECT_EQ(Internet::GetPublicIP(), "5.6.7.8");
}

TEST_F(InternetHelpersStory, WithoutThePageThereIsNoAddress) {
  machine.web.Answer(AddressPage, {1, PageWith("1", "2", "3", "4")});
  EXPECT_EQ(Internet::GetPublicIP(), "");
  EXPECT_FALSE(Internet::IsInternetConnected());
  machine.web.GoOffline();
  EXPECT_EQ(Internet::GetPublicIP(), "");
  EXPECT_FALSE(Internet::IsInternetConnected());
}

TEST_F(InternetHelpersStory, AnEmptyPageMeansThatOneIsNotOnline) {
  machine.web.Serve(AddressPage, "");
  EXPECT_FALSE(Internet::IsInternetConnected());
}

TEST_F(InternetHelpersStory, APageThatIsNotUnderstoodIsAFailureAndLeavesNothing) {
  machine.web.Serve(AddressPage, "<html>404 Not Found</html>");
  EXPECT_THROW(Internet::GetPublicIP(), RuntimeError);
  EXPECT_THROW(Internet::IsInternetConnected(), RuntimeError);
  EXPECT_FALSE(machine.files.Exists(Pack + "read.tmp"));
}

TEST_F(InternetHelpersStory, APageThatCannotBeReadIsAFailure) {
  machine.web.Answer(AddressPage, {0, {}});
  try {
    Internet::GetPublicIP();
    ADD_FAILURE() << "did not fail";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.number(), RuntimeError::FileNotFound);
    EXPECT_EQ(error.file(), Pack + "read.tmp");
  }
}

TEST_F(InternetHelpersStory, APageBeyondAllMeasureIsNotRead) {
  std::string large(TemporaryFile::LargestRead - 14, 'x');
  machine.web.Serve(AddressPage, large + std::string(14, '.'));
  EXPECT_EQ(Internet::GetPublicIP(), "...");
  machine.web.Serve(AddressPage, large + std::string(15, '.'));
  try {
    Internet::GetPublicIP();
    ADD_FAILURE() << "did not fail";
  } catch (const RuntimeError& error) {
    EXPECT_STREQ(error.cause().key, "DownloadTooLarge");
  }
}

}  // namespace
