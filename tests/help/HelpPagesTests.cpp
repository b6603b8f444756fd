// The pages of the help file: that they lead to each other, and speak of what the program shows.
#include <gmock/gmock.h>

#include <filesystem>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "app/LanguageTemplate.h"
#include "tests/ProjectFile.h"

namespace {

namespace fs = std::filesystem;

using ProjectFile::BytesOf;

const fs::path HelpFolder = ProjectFile::Root / "help";

// The first group of every match, in order.
std::vector<std::string> Matches(const std::string& text, const char* pattern) {
  const std::regex regex(pattern);
  std::vector<std::string> found;
  for (std::sregex_iterator match(text.begin(), text.end(), regex), end; match != end; ++match) {
    found.push_back((*match)[1]);
  }
  return found;
}

std::set<std::string> Pages() {
  std::set<std::string> pages;
  for (const auto& entry : fs::directory_iterator(HelpFolder)) {
    if (entry.path().extension() == ".html") pages.insert(entry.path().filename().string());
  }
  return pages;
}

TEST(HelpPages, EachIsInTheHelpFileOnce) {
  const std::string project = BytesOf(HelpFolder / "sk2pack.hhp");
  const auto listed = Matches(project.substr(project.find("[FILES]")), "([^\\n]+\\.html)");
  EXPECT_THAT(listed, testing::UnorderedElementsAreArray(Pages()));
}

TEST(HelpPages, EachIsInTheContentsUnderItsTitle) {
  const std::string contents = BytesOf(HelpFolder / "contents.hhc");
  const auto titles = Matches(contents, "name=\"Name\" value=\"([^\"]*)\"");
  const auto files = Matches(contents, "name=\"Local\" value=\"([^\"]*)\"");
  EXPECT_THAT(files, testing::UnorderedElementsAreArray(Pages()));
  ASSERT_EQ(titles.size(), files.size());
  for (size_t i = 0; i < files.size(); ++i) {
    const std::string page = BytesOf(HelpFolder / files[i]);
    EXPECT_THAT(Matches(page, "<title>([^<]*)</title>"), testing::ElementsAre(titles[i]));
    EXPECT_THAT(Matches(page, "<h1>([^<]*)</h1>"), testing::ElementsAre(titles[i]));
  }
}

TEST(HelpPages, LinksLeadToPages) {
  const std::set<std::string> pages = Pages();
  ASSERT_FALSE(pages.empty());
  std::set<std::string> reached;
  for (const std::string& page : pages) {
    for (const std::string& link : Matches(BytesOf(HelpFolder / page), "href=\"([^\"]*)\"")) {
      EXPECT_TRUE(pages.contains(link)) << link << " in " << page;
      reached.insert(link);
    }
  }
  reached.insert("welcome.html");
  EXPECT_EQ(reached, pages) << "every page can be reached from another one";
}

TEST(HelpPages, SayWhichLanguageTheyAreIn) {
  for (const std::string& page : Pages()) {
    EXPECT_TRUE(BytesOf(HelpFolder / page).find("<html lang=\"en\">") != std::string::npos) << page;
  }
}

// What stands in bold is a text of the program, as its users see or hear it.
TEST(HelpPages, NameOnlyWhatTheProgramShows) {
  std::set<std::string> shown;
  for (const LangText& text : AllTexts()) {
    std::string caption = text.english;
    std::erase(caption, '&');
    shown.insert(caption);
  }
  size_t count = 0;
  for (const std::string& page : Pages()) {
    for (const std::string& name : Matches(BytesOf(HelpFolder / page), "<b>([^<]*)</b>")) {
      EXPECT_TRUE(shown.contains(name)) << name << " in " << page;
      ++count;
    }
  }
  EXPECT_GT(count, 0U);
}

}  // namespace
