// The language changer, worked by keyboard and heard.
#include "tests/FailureSweep.h"
#include "tests/app/PackStory.h"

namespace {

using Platform::Icon;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const std::string Title = "Change current language";
const std::string Saved = "The language has been saved.";

class LanguageStory : public PackStory {
 protected:
  static inline const std::string Sounds = Game + "\\sounds";
  static inline const std::string Configuration = Game + "\\Skidrun.cfg";

  LanguageStory() { StartPack(); }

  void PutLanguages(const std::vector<std::string>& names) {
    for (const std::string& name : names) machine.files.PutFolder(Sounds + "\\" + name);
  }
  void OpenChanger() { user.ChoosesMenu({"Language", "Change current language"}); }

  // Chooses the second of two languages, Dutch, in a game with that configuration.
  std::string AfterChoosingDutch(std::string_view configuration) {
    PutLanguages({"English", "Dutch"});
    machine.files.Put(Configuration, configuration);
    OpenChanger();
    user.Presses("Down");
    user.Presses("Enter");
    EXPECT_THAT(user.LastBox(), Shows(Icon::Information, Saved, "Language changed"));
    EXPECT_EQ(machine.files.Attributes(Configuration), Simulated::Hidden);
    return machine.files.Text(Configuration);
  }

  void ExpectMainWindow() const {
    EXPECT_EQ(Platform::ActiveForm(), &Platform::MainForm());
    EXPECT_TRUE(Platform::MainForm().IsVisible());
  }
  void ExpectNoLanguagesTold() const {
    ASSERT_EQ(user.Boxes().size(), 1U);
    EXPECT_THAT(user.LastBox(),
                Shows(Icon::Critical, "No languages are currently installed on Skidrun2.",
                      "Language detection error"));
    ExpectMainWindow();
  }
};

// --- Opening ---

TEST_F(LanguageStory, PlayerHearsTheFirstLanguageAndTabsThroughTheWindow) {
  PutLanguages({"English", "Deutsch", "Nederlands"});
  OpenChanger();
  EXPECT_FALSE(Platform::MainForm().IsVisible());
  EXPECT_THAT(user.HearsOnOpening(), ElementsAre(Title, "Select Language:, list, English, 1 of 3"));
  user.Presses("Tab");
  EXPECT_EQ(user.Hears(), "Select, button, Alt+S");
  user.Presses("Tab");
  EXPECT_EQ(user.Hears(), "Cancel, button");
  user.Presses("Tab");
  EXPECT_EQ(user.Hears(), "Select Language:, list, English, 1 of 3");
  EXPECT_THAT(Platform::SharedAccessKeys(*Platform::ActiveForm()), IsEmpty());
}

TEST_F(LanguageStory, LanguagesStandInTheOrderOfTheSystemAndAreNotSorted) {
  PutLanguages({"Suomi", "English", "Deutsch"});
  OpenChanger();
  EXPECT_EQ(user.Hears(), "Select Language:, list, Suomi, 1 of 3");
  user.Presses("Down");
  EXPECT_EQ(user.Hears(), "Select Language:, list, English, 2 of 3");
  user.Presses("Down");
  EXPECT_EQ(user.Hears(), "Select Language:, list, Deutsch, 3 of 3");
}

TEST_F(LanguageStory, APlainFileAndAHiddenFolderAmongTheSoundsCountAsLanguages) {
  PutLanguages({"English"});
  machine.files.Put(Sounds + "\\readme.txt", "not a language");
  machine.files.PutFolder(Sounds + "\\Secret");
  machine.files.SetAttributes(Sounds + "\\Secret", Simulated::Hidden);
  machine.files.Put(Configuration, "Language=English\r\n");
  OpenChanger();
  user.Presses("Down");
  EXPECT_EQ(user.Hears(), "Select Language:, list, readme.txt, 2 of 3");
  user.Presses("Enter");
  EXPECT_EQ(machine.files.Text(Configuration), "Language=readme.txt\r\n");
  user.Presses("Down");
  EXPECT_EQ(user.Hears(), "Select Language:, list, Secret, 3 of 3");
}

TEST_F(LanguageStory, ANameIsTakenAsItStands) {
  PutLanguages({"M&M; = x,(1)"});
  OpenChanger();
  EXPECT_EQ(user.Hears(), "Select Language:, list, M&M; = x,(1), 1 of 1");
  user.Presses("Enter");
  EXPECT_EQ(machine.files.Text(Configuration), "Language=M&M; = x,(1)\r\n");
}

TEST_F(LanguageStory, TheListIsMadeAnewAtEachOpening) {
  PutLanguages({"English", "Deutsch"});
  OpenChanger();
  user.Presses("End");
  user.Presses("Escape");
  machine.files.Delete(Sounds + "\\Deutsch");
  PutLanguages({"Suomi"});
  OpenChanger();
  EXPECT_EQ(user.Hears(), "Select Language:, list, English, 1 of 2");
  user.Presses("Down");
  EXPECT_EQ(user.Hears(), "Select Language:, list, Suomi, 2 of 2");
}

TEST_F(LanguageStory, TextsAreInTheUsersLanguage) {
  machine.files.Put(machine.executable.folder + "\\sk2pack.lng",
                    "LanguageChangerTitle=Sprache\r\nLanguageChangerText=&Sprache:\r\n"
                    "SelectButton=&Nehmen\r\nCclButton=Abbrechen\r\nLangChangedText=Fertig.\r\n"
                    "LangChangedTitle=Getan\r\n");
  PutLanguages({"English"});
  OpenChanger();
  EXPECT_EQ(user.SeesWindow(), "Sprache");
  EXPECT_EQ(user.Hears(), "Sprache:, list, English, 1 of 1, Alt+S");
  user.Presses("Alt+N");
  EXPECT_THAT(user.LastBox(), Shows(Icon::Information, "Fertig.", "Getan"));
  user.Presses("Tab");
  EXPECT_EQ(user.Hears(), "Abbrechen, button");
}

TEST_F(LanguageStory, WithoutAFolderOfSoundsNoLanguageIsInstalled) {
  machine.files.Delete(Sounds);
  OpenChanger();
  ExpectNoLanguagesTold();
}

TEST_F(LanguageStory, AnEmptyFolderOfSoundsHasNoLanguage) {
  machine.files.PutFolder(Sounds);
  OpenChanger();
  ExpectNoLanguagesTold();
}

TEST_F(LanguageStory, ALanguageThatIsInstalledMeanwhileIsFoundAtTheNextOpening) {
  OpenChanger();
  ExpectNoLanguagesTold();
  PutLanguages({"English"});
  OpenChanger();
  EXPECT_EQ(user.Hears(), "Select Language:, list, English, 1 of 1");
  user.Presses("Escape");
  machine.files.Delete(Sounds + "\\English");
  OpenChanger();
  EXPECT_EQ(user.Boxes().size(), 2U);
  ExpectMainWindow();
}

TEST_F(LanguageStory, WithoutTheGameTheUserIsToldOnce) {
  machine.registry = {};
  OpenChanger();
  ASSERT_EQ(user.Boxes().size(), 1U);
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, HasSubstr("Skidrun2 was not found")));
  ExpectMainWindow();
}

// --- Choosing ---

TEST_F(LanguageStory, AChosenLanguageIsWrittenAndTheWindowStays) {
  EXPECT_EQ(AfterChoosingDutch("Language=English\r\nMultiplayer=1.2.3.4\r\n"),
            "Language=Dutch\r\nMultiplayer=1.2.3.4\r\n");
  EXPECT_EQ(user.LastBox().owner, Title);
  EXPECT_EQ(user.SeesWindow(), Title);
  EXPECT_EQ(user.Hears(), "Select Language:, list, Dutch, 2 of 2");
  user.Presses("Up");
  user.Presses("Alt+S");
  EXPECT_EQ(machine.files.Text(Configuration), "Language=English\r\nMultiplayer=1.2.3.4\r\n")
      << "a second choice in the same window";
  EXPECT_EQ(user.Boxes().size(), 2U);
}

TEST_F(LanguageStory, AConfigurationWithoutALanguageGetsItAsItsLastLine) {
  EXPECT_EQ(AfterChoosingDutch("Volume=5\r\nMultiplayer=1.2.3.4\r\n"),
            "Volume=5\r\nMultiplayer=1.2.3.4\r\nLanguage=Dutch\r\n");
}

TEST_F(LanguageStory, EveryLanguageLineIsChanged) {
  EXPECT_EQ(AfterChoosingDutch("Language=English\r\nVolume=5\r\nLanguage=German\r\n"),
            "Language=Dutch\r\nVolume=5\r\nLanguage=Dutch\r\n");
}

TEST_F(LanguageStory, ALanguageThatIsNotAtTheStartOfALineKeepsTheOldLineAndAddsNone) {
  EXPECT_EQ(AfterChoosingDutch("OldLanguage=x\r\nVolume=5\r\n"), "OldLanguage=x\r\nVolume=5\r\n");
}

TEST_F(LanguageStory, ALanguageInSmallLettersIsAnotherSetting) {
  EXPECT_EQ(AfterChoosingDutch("language=x\r\n"), "language=x\r\nLanguage=Dutch\r\n");
}

TEST_F(LanguageStory, EmptyLinesOfTheConfigurationDisappear) {
  EXPECT_EQ(AfterChoosingDutch("Volume=5\r\n\r\n\r\nLanguage=English\r\n\r\nMultiplayer=x"),
            "Volume=5\r\nLanguage=Dutch\r\nMultiplayer=x\r\n");
}

TEST_F(LanguageStory, AHiddenAndProtectedConfigurationIsWrittenAndHiddenAfterwards) {
  machine.files.Put(Configuration, "Language=English\r\n");
  machine.files.SetAttributes(Configuration,
                              Simulated::ReadOnly + Simulated::Hidden + Simulated::System);
  EXPECT_EQ(AfterChoosingDutch("Language=English\r\n"), "Language=Dutch\r\n");
}

TEST_F(LanguageStory, AMissingConfigurationIsMadeWithTheLanguageAlone) {
  PutLanguages({"English"});
  OpenChanger();
  user.Presses("Enter");
  EXPECT_THAT(user.LastBox(), Shows(Icon::Information, Saved, "Language changed"));
  EXPECT_EQ(machine.files.Text(Configuration), "Language=English\r\n");
  EXPECT_EQ(machine.files.Attributes(Configuration), Simulated::Hidden);
}

TEST_F(LanguageStory, AnEmptyConfigurationBecomesTheLanguageAlone) {
  EXPECT_EQ(AfterChoosingDutch(""), "Language=Dutch\r\n");
}

TEST_F(LanguageStory, WithoutASelectionTheUserIsLedToTheListAndNothingIsWritten) {
  PutLanguages({"English"});
  OpenChanger();
  auto& list = static_cast<Platform::ListBox&>(*Platform::ActiveForm()->controls()[0]);
  list.Select(-1);
  user.Presses("Alt+S");
  EXPECT_EQ(user.Hears(), "Select Language:, list, not selected");
  EXPECT_THAT(user.Boxes(), IsEmpty());
  EXPECT_FALSE(machine.files.Exists(Configuration));
  user.Presses("Down");
  user.Presses("Enter");
  EXPECT_EQ(machine.files.Text(Configuration), "Language=English\r\n");
}

// --- Leaving ---

TEST_F(LanguageStory, EveryWayOutLeadsToTheMainWindowAndWritesNothing) {
  PutLanguages({"English"});
  const std::vector<std::pair<std::string, std::function<void()>>> ways = {
      {"Escape", [this] { user.Presses("Escape"); }},
      {"Alt+F4", [this] { user.Presses("Alt+F4"); }},
      {"the close box", [this] { user.ClosesWindow(); }},
      {"the Cancel button",
       [this] {
         user.Presses("Shift+Tab");
         user.Presses("Space");
       }},
  };
  for (const auto& [name, leave] : ways) {
    SCOPED_TRACE(name);
    OpenChanger();
    EXPECT_EQ(user.SeesWindow(), Title);
    leave();
    ExpectMainWindow();
  }
  EXPECT_FALSE(machine.files.Exists(Configuration));
}

// --- Failures ---

TEST_F(LanguageStory, ASaveThatFailsIsToldAndTheWindowStaysForAnotherTry) {
  PutLanguages({"English"});
  machine.files.Put(Configuration, "Language=German\r\n");
  machine.files.SetAttributes(Configuration, Simulated::Hidden);
  machine.files.Hold(Configuration);
  OpenChanger();
  user.Presses("Enter");
  ASSERT_EQ(user.Boxes().size(), 1U) << "it is not called saved";
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, HasSubstr(Configuration)));
  EXPECT_EQ(machine.files.Text(Configuration), "Language=German\r\n");
  EXPECT_EQ(machine.files.Attributes(Configuration), Simulated::Hidden);
  EXPECT_EQ(user.Hears(), "Select Language:, list, English, 1 of 1");
  machine.files.Release(Configuration);
  user.Presses("Enter");
  EXPECT_EQ(machine.files.Text(Configuration), "Language=English\r\n");
}

TEST_F(LanguageStory, AGameThatWasUninstalledMeanwhileIsTold) {
  PutLanguages({"English"});
  OpenChanger();
  machine.registry = {};
  user.Presses("Enter");
  ASSERT_EQ(user.Boxes().size(), 1U);
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, HasSubstr("Skidrun2 was not found")));
  EXPECT_EQ(user.SeesWindow(), Title);
}

TEST_F(LanguageStory, AFileInThePlaceOfTheSoundsIsTold) {
  machine.files.Delete(Sounds);
  machine.files.Put(Sounds, "no folder");
  OpenChanger();
  ASSERT_EQ(user.Boxes().size(), 1U);
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, HasSubstr(Sounds)));
  ExpectMainWindow();
}

// Lets each call fail in turn while the user opens the changer, chooses a language and leaves.
// Whatever fails, the configuration is the old one or the new one, with the attributes that go with
// it; "saved" is said only of the new one; and a window is there to be used.
TEST(LanguageSweep, AnySingleFailureIsToldAndLeavesAWholeConfiguration) {
  const std::string game = "C:\\Games\\Skidrun2";
  const std::string configuration = game + "\\Skidrun.cfg";
  const std::string before = "Language=English\r\n\r\nMultiplayer=1.2.3.4\r\n";
  const std::string after = "Language=Deutsch\r\nMultiplayer=1.2.3.4\r\n";
  const int protectedAttributes = Simulated::ReadOnly + Simulated::Hidden;
  const auto calls = ForEachCallThatFails([&](auto& machine, Simulated::After n) {
    Simulated::User& user = machine.user;
    InstallGame(machine, game);
    machine.files.PutFolder(game + "\\sounds\\English");
    machine.files.PutFolder(game + "\\sounds\\Deutsch");
    machine.files.Put(configuration, before);
    machine.files.SetAttributes(configuration, protectedAttributes);
    StartPack();
    const auto names = machine.files.Names(game);
    machine.FailAnyCall(n);

    const auto isOpen = [] { return Platform::ActiveForm() != &Platform::MainForm(); };
    user.ChoosesMenu({"Language", "Change current language"});
    EXPECT_TRUE(Platform::ActiveForm()->IsVisible());
    if (!isOpen()) {
      ASSERT_TRUE(machine.FailureHappened());
      EXPECT_EQ(user.Boxes().size(), 1U);
      return;
    }
    user.Presses("Down");
    user.Presses("Enter");
    const std::string text = machine.files.Text(configuration);
    const bool isSaved = !user.Boxes().empty() && user.LastBox().text == Saved;
    EXPECT_THAT(text, testing::AnyOf(before, after));
    if (isSaved) {
      EXPECT_EQ(text, after);
      EXPECT_EQ(machine.files.Attributes(configuration), Simulated::Hidden);
    } else {
      EXPECT_TRUE(machine.FailureHappened());
    }
    if (text == before) {
      EXPECT_EQ(machine.files.Attributes(configuration), protectedAttributes);
    }
    EXPECT_EQ(machine.files.Names(game), names);
    user.Presses("Escape");
    if (isOpen()) {
      EXPECT_THAT(machine.FailedCall(), testing::StartsWith("FormView::Show"));
      user.Presses("Escape");
    }
    EXPECT_FALSE(isOpen());
  });
  EXPECT_GT(calls.size(), 8U) << "hardly a call was made to fail";
}

}  // namespace
