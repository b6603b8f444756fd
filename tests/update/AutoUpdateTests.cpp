// The option to look for updates at the start, and what the start does then.
#include "update/AutoUpdate.h"

#include <set>

#include "tests/FailureSweep.h"
#include "tests/update/UpdateStory.h"

namespace {

using Platform::Icon;
using testing::IsEmpty;
using testing::SizeIs;

class AutoUpdateStory : public UpdateStory {
 protected:
  void Toggles() { user.ChoosesMenu({"Options", "Automatically update on startup"}); }

  bool IsChecked() const {
    for (const Platform::MenuItem* menu : Platform::MainForm().menus()) {
      for (const Platform::MenuItem* item : menu->items()) {
        if (item->caption() == "Automatically update on startup") return item->IsChecked();
      }
    }
    return false;
  }
};

TEST_F(AutoUpdateStory, TheOptionIsOffUntilItIsToggled) {
  StartPack();
  EXPECT_FALSE(IsChecked());
  EXPECT_THAT(machine.web.Downloads(), IsEmpty());
  Toggles();
  EXPECT_THAT(user.LastBox(), Shows(Icon::Information, "Automatic update checks are now turned on.",
                                    "Information"));
  EXPECT_TRUE(IsChecked());
  EXPECT_THAT(machine.web.Downloads(), IsEmpty()) << "it is for the next start";
  Toggles();
  EXPECT_THAT(user.LastBox(), Shows(Icon::Information,
                                    "Automatic update checks are now turned off.", "Information"));
  EXPECT_FALSE(IsChecked());
}

TEST_F(AutoUpdateStory, TheFileHoldsOneCharacterOfManyThatMeanTheSame) {
  StartPack();
  std::set<char> on;
  std::set<char> off;
  for (int i = 0; i < 400; ++i) {
    Toggles();
    const std::string file = machine.files.Text(Settings);
    ASSERT_THAT(file, SizeIs(3));
    EXPECT_TRUE(file.ends_with("\r\n"));
    (i % 2 == 0 ? on : off).insert(file[0]);
  }
  EXPECT_GE(*on.begin(), 'P');
  EXPECT_LE(*on.rbegin(), '~');
  EXPECT_GE(*off.begin(), ' ');
  EXPECT_LE(*off.rbegin(), 'O');
  EXPECT_GT(on.size(), 30U) << "of 47";
  EXPECT_GT(off.size(), 30U) << "of 48";
}

TEST_F(AutoUpdateStory, TheFileIsReadByItsFirstCharacterAlone) {
  const std::vector<std::pair<std::string, bool>> files = {
      {"P\r\n", true}, {"~\r\n", true}, {"O\r\n", false},  {" \r\n", false},
      {"P", true},     {"", false},     {"\r\n", false},   {"Off", false},
      {"POff", true},  {"\xFF", true},  {"O\r\nP", false}, {std::string(1000, 'z'), true}};
  for (const auto& [bytes, isOn] : files) {
    machine.files.Put(Settings, bytes);
    EXPECT_EQ(Updater::ReadAutoUpdateSetting(), isOn) << bytes;
    EXPECT_EQ(Updater::IsAutoUpdateOn(), isOn);
  }
  machine.files.Delete(Settings);
  EXPECT_FALSE(Updater::ReadAutoUpdateSetting());
}

TEST_F(AutoUpdateStory, AFileThatCannotBeReadMeansOff) {
  machine.files.Put(Settings, "P\r\n");
  machine.files.HoldAlone(Settings);
  StartPack();
  EXPECT_FALSE(IsChecked());
  machine.files.Release(Settings);
}

TEST_F(AutoUpdateStory, AnOptionThatCannotBeSavedStaysAsItWas) {
  StartPack();
  machine.files.Put(Settings, "O\r\n");
  machine.files.SetAttributes(Settings, Simulated::ReadOnly);
  Toggles();
  EXPECT_EQ(user.LastBox().icon, Icon::Critical);
  EXPECT_FALSE(IsChecked());
  EXPECT_FALSE(Updater::IsAutoUpdateOn());
  EXPECT_EQ(machine.files.Text(Settings), "O\r\n");
}

TEST_F(AutoUpdateStory, AStartWithTheOptionOnTellsOfANewerVersionBeforeTheWindowComes) {
  machine.files.Put(Settings, "P\r\n");
  Publish("2");
  user.AnswersNo();
  StartPack();
  EXPECT_THAT(user.Boxes(), SizeIs(1));
  EXPECT_EQ(user.LastBox().title, "Update");
  EXPECT_EQ(user.LastBox().owner, "") << "the window is not there yet";
  EXPECT_TRUE(IsChecked());
  EXPECT_EQ(user.SeesWindow(), Title);
}

TEST_F(AutoUpdateStory, AStartThatUpdatesShowsNoWindow) {
  machine.files.Put(Settings, "P\r\n");
  Publish("2");
  user.AnswersYes();
  StartPack();
  EXPECT_THAT(machine.launches.All(), SizeIs(1));
  EXPECT_TRUE(Platform::HasProgramEnded());
  EXPECT_THAT(machine.screen.Titles(), IsEmpty());
  EXPECT_THAT(machine.mutexes.Held(), IsEmpty()) << "the installer would wait for it";
}

TEST_F(AutoUpdateStory, AStartSaysNothingOfWhatIsNotNewer) {
  machine.files.Put(Settings, "P\r\n");
  const auto startsQuietly = [this] {
    machine.StartAnew();
    ::StartPack();
    EXPECT_THAT(user.Boxes(), IsEmpty());
    EXPECT_EQ(user.SeesWindow(), Title);
  };
  for (const char* records :
       {"sk2up=1.1.5", "sk2up=1", "sk2up=2.1", "other=2", "none", "sk2up=99999999999.0.0"}) {
    machine.web.Serve(Records, records);
    startsQuietly();
  }
  machine.web.TakeAway(Records);
  startsQuietly();
  machine.web.Serve(AddressPage, "sold");
  startsQuietly();
  machine.web.GoOffline();
  startsQuietly();
}

TEST_F(AutoUpdateStory, AnUpdateAtTheStartThatFailsIsTold) {
  machine.files.Put(Settings, "P\r\n");
  Publish("2");
  machine.web.AnswerOnce(Installer, {0, "MZ probed"});
  machine.web.AnswerOnce(Installer, {0, {}});
  user.AnswersYes();
  StartPack();
  EXPECT_THAT(user.Boxes(), SizeIs(2));
  EXPECT_EQ(user.LastBox().icon, Icon::Critical);
  EXPECT_EQ(user.SeesWindow(), Title);
}

}  // namespace
