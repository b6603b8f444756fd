#include "app/LanguageTemplate.h"

#include <gmock/gmock.h>

#include "tests/ProjectFile.h"
#include "tests/Story.h"
#include "tests/Texts.h"
#include "text/StringTable.h"

namespace {

const std::string LanguageFile = "C:\\Program Files\\SK2Pack\\sk2pack.lng";

class LanguageTemplateStory : public Story {};

TEST_F(LanguageTemplateStory, IsTheFileThatLookingUpAllTextsMakes) {
  for (const LangText& text : AllTexts()) GetLangString(text);
  EXPECT_EQ(machine.files.Text(LanguageFile), LanguageTemplate());
}

TEST_F(LanguageTemplateStory, IsWhatTranslatorsGet) {
  EXPECT_EQ(ProjectFile::BytesOf("languages/template.lng"), LanguageTemplate())
      << "build the target 'template'";
}

TEST_F(LanguageTemplateStory, GivesEveryTextItsDefaultBack) {
  machine.files.Put(LanguageFile, LanguageTemplate());
  for (const LangText& text : AllTexts()) {
    // The one key with two defaults: the first one written stays.
    const bool isInformation = text.key && std::string(text.key) == "Information";
    EXPECT_EQ(GetLangString(text), isInformation ? "information" : text.english);
  }
  EXPECT_EQ(machine.files.Text(LanguageFile), LanguageTemplate());
}

// The tables hold them beside the others, but nobody translates them.
TEST_F(LanguageTemplateStory, HasNoTextWithoutAKey) {
  std::vector<std::string> fixed;
  for (const LangText& text : AllTexts()) {
    if (!text.key) fixed.emplace_back(text.english);
  }
  EXPECT_THAT(fixed, testing::IsSupersetOf({"&Gloamworks", "Open Engine Sound",
                                            "Engine Top Speed Frequency: ", "Car"}));
  EXPECT_EQ(fixed.size(), 2U + 4U + 14U + 3U) << "websites, dialogs, rows and kinds of add-ons";
  machine.files.Put(LanguageFile, "");
  for (const LangText& text : AllTexts()) {
    if (text.key) continue;
    EXPECT_EQ(GetLangString(text), text.english);
  }
  EXPECT_EQ(machine.files.Text(LanguageFile), "") << "looked up";
}

TEST_F(LanguageTemplateStory, HasNoTextThatALookupWouldChange) {
  for (const LangText& text : AllTexts()) {
    if (!text.key) continue;
    const std::string key = text.key;
    EXPECT_FALSE(key.empty());
    EXPECT_FALSE(Texts::Contains(key, "=") || Texts::Contains(key, ";") ||
                 Texts::Contains(key, " "))
        << key;
    const std::string english = text.english;
    EXPECT_FALSE(Texts::Contains(english, ";") || Texts::Contains(english, "\r")) << key;
  }
}

}  // namespace
