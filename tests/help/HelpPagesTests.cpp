// The pages of the help: that they are sound, lead to each other, and are made for being heard.
#include <gmock/gmock.h>

#include <set>
#include <sstream>

#include "app/LanguageTemplate.h"
#include "tests/help/HelpFolder.h"

namespace {

using HelpFolder::BytesOf;
using HelpFolder::Matches;
using HelpFolder::Pages;
using HelpFolder::Read;

std::set<std::string> Names() {
  std::set<std::string> names;
  for (const auto& [name, page] : Pages()) names.insert(name);
  return names;
}

// Where a link leads: the page, and the part of it that is named behind "#".
struct Target {
  explicit Target(const std::string& link)
      : page(link.substr(0, link.find('#'))),
        part(link.find('#') == std::string::npos ? "" : link.substr(link.find('#') + 1)) {}
  std::string page;
  std::string part;
};

void ExpectToBeThere(const std::string& link, const std::string& where) {
  static const auto pages = Pages();
  const Target target(link);
  ASSERT_TRUE(pages.contains(target.page)) << link << " in " << where;
  if (target.part.empty()) return;
  const auto parts = Matches(pages.at(target.page), " id=\"([^\"]*)\"");
  EXPECT_EQ(std::count(parts.begin(), parts.end(), target.part), 1) << link << " in " << where;
}

TEST(HelpPages, EachIsInTheHelpFileOnce) {
  const std::string project = BytesOf("sk2pack.hhp");
  const auto listed = Matches(project.substr(project.find("[FILES]")), "([^\\n]+\\.html)");
  EXPECT_THAT(listed, testing::UnorderedElementsAreArray(Names()));
}

TEST(HelpPages, EachIsInTheContentsUnderItsTitle) {
  const std::string contents = BytesOf("contents.hhc");
  std::set<std::string> listed;
  const std::regex entry(
      "name=\"Name\" value=\"([^\"]*)\">\\s*<param name=\"Local\" value=\"([^\"]*)\"");
  for (std::sregex_iterator it(contents.begin(), contents.end(), entry), end; it != end; ++it) {
    const std::string page = BytesOf((*it)[2]);
    EXPECT_THAT(Matches(page, "<title>([^<]*)</title>"), testing::ElementsAre((*it)[1].str()));
    EXPECT_TRUE(listed.insert((*it)[2]).second) << (*it)[2] << " is there twice";
  }
  EXPECT_EQ(listed, Names());
}

TEST(HelpPages, AreFoundInTheIndex) {
  const std::string index = BytesOf("index.hhk");
  const auto names = Matches(index, "name=\"Name\" value=\"([^\"]*)\"");
  const auto links = Matches(index, "name=\"Local\" value=\"([^\"]*)\"");
  ASSERT_EQ(names.size(), links.size());
  EXPECT_EQ(std::set<std::string>(names.begin(), names.end()).size(), names.size());
  std::set<std::string> reached;
  for (const std::string& link : links) {
    ExpectToBeThere(link, "index.hhk");
    reached.insert(Target(link).page);
  }
  EXPECT_EQ(reached, Names());
}

TEST(HelpPages, LinksLeadToPages) {
  std::set<std::string> reached{"index.html"};
  for (const auto& [name, page] : Pages()) {
    for (const std::string& link : Matches(page, "href=\"([^\"]*)\"")) {
      ExpectToBeThere(link, name);
      if (Target(link).page != name) reached.insert(Target(link).page);
    }
    if (name != "index.html") {
      EXPECT_THAT(Matches(page, "href=\"(index\\.html)\""), testing::Not(testing::IsEmpty()))
          << name;
    }
  }
  EXPECT_EQ(reached, Names()) << "every page can be reached from another one";
}

// Who reads a page by its links, with nothing around them, must know where each leads.
TEST(HelpPages, LinksSayWhereTheyLead) {
  const auto pages = Pages();
  const std::regex anchor("<a href=\"([^\"#]*)\">([^<]*)</a>");
  for (const auto& [name, page] : pages) {
    std::map<std::string, std::string> targets;
    for (std::sregex_iterator it(page.begin(), page.end(), anchor), end; it != end; ++it) {
      const std::string text = Read((*it)[2]);
      EXPECT_GE(text.size(), 8U) << name;
      EXPECT_THAT(text, testing::Not(testing::AnyOf("click here", "see here", "read more")));
      const auto [known, isNew] = targets.emplace(text, (*it)[1]);
      EXPECT_TRUE(isNew || known->second == (*it)[1]) << text << " leads to two pages in " << name;
    }
  }
}

TEST(HelpPages, SayTheirLanguageAndTheirTitle) {
  for (const auto& [name, page] : Pages()) {
    EXPECT_TRUE(page.find("<html lang=\"en\">") != std::string::npos) << name;
    const auto titles = Matches(page, "<title>([^<]+)</title>");
    ASSERT_EQ(titles.size(), 1U) << name;
    EXPECT_THAT(Matches(page, "<h1>([^<]*)</h1>"), testing::ElementsAre(titles[0])) << name;
    // They say that they are, and so no reader has to guess.
    EXPECT_TRUE(page.find("charset=us-ascii") != std::string::npos) << name;
    EXPECT_TRUE(std::all_of(page.begin(), page.end(), [](char c) { return c > 0; })) << name;
  }
}

TEST(HelpPages, SkipNoLevelOfHeadings) {
  for (const auto& [name, page] : Pages()) {
    int last = 0;
    for (const std::string& level : Matches(page, "<h([1-6])")) {
      EXPECT_LE(level[0] - '0', last + 1) << name;
      last = level[0] - '0';
    }
    EXPECT_EQ(Matches(page, "<(h1)>").size(), 1U) << name;
  }
}

TEST(HelpPages, CloseWhatTheyOpen) {
  const std::regex tag("<(/?)([a-z0-9]+)[^>]*>");
  for (const auto& [name, page] : Pages()) {
    std::vector<std::string> open;
    for (std::sregex_iterator it(page.begin(), page.end(), tag), end; it != end; ++it) {
      const std::string element = (*it)[2];
      if (element == "meta") continue;
      if ((*it)[1] == "") {
        open.push_back(element);
        continue;
      }
      ASSERT_FALSE(open.empty()) << name << ": " << it->str();
      ASSERT_EQ(open.back(), element) << name;
      open.pop_back();
    }
    EXPECT_THAT(open, testing::IsEmpty()) << name;
    // An "&" that begins nothing is read differently from reader to reader.
    EXPECT_FALSE(std::regex_search(page, std::regex("&(?!amp;|lt;|gt;|quot;)"))) << name;
  }
}

TEST(HelpPages, TablesHaveCaptionsAndHeads) {
  for (const auto& [name, page] : Pages()) {
    const size_t tables = Matches(page, "<(table)").size();
    EXPECT_EQ(Matches(page, "<table border=\"1\">\\s*<(caption)>").size(), tables) << name;
    EXPECT_EQ(Matches(page, "</caption>\\s*<tr>(<th scope=\"col\">)").size(), tables) << name;
    EXPECT_EQ(Matches(page, "(<th>)").size(), 0U) << name;
  }
}

TEST(HelpPages, ShowNoPictures) {
  for (const auto& [name, page] : Pages()) {
    EXPECT_THAT(Matches(page, "<(img|script|frame|style)"), testing::IsEmpty()) << name;
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
  for (const auto& [name, page] : Pages()) {
    for (const std::string& text : Matches(page, "<b>([^<]*)</b>")) {
      EXPECT_TRUE(shown.contains(Read(text))) << text << " in " << name;
      ++count;
    }
  }
  EXPECT_GT(count, 0U);
}

}  // namespace
