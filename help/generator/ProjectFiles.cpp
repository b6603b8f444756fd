// What makes one help of the pages: the contents, the index, and the project of the help compiler.
#include <cctype>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <stdexcept>

#include "help/generator/Pages.h"
#include "help/generator/ProgramWindows.h"

namespace Help {

namespace {

namespace fs = std::filesystem;

std::string FirstMatch(const std::string& text, const char* pattern) {
  std::smatch match;
  return std::regex_search(text, match, std::regex(pattern)) ? match[1].str() : "";
}

// As it stands in the page, "&amp;" and all.
std::string TitleOf(const std::string& name, const std::string& page) {
  std::string title = FirstMatch(page, "<title>([^<]*)</title>");
  if (title.empty()) throw std::runtime_error(name + " has no title");
  return title;
}

std::vector<std::string> KeywordsOf(const std::string& page) {
  std::vector<std::string> words;
  std::string rest = FirstMatch(page, "<meta name=\"keywords\" content=\"([^\"]*)\">");
  while (!rest.empty()) {
    const size_t end = rest.find("; ");
    words.push_back(rest.substr(0, end));
    rest = end == std::string::npos ? "" : rest.substr(end + 2);
  }
  return words;
}

std::string Sitemap(const std::string& name, const std::string& target) {
  return "<li><object type=\"text/sitemap\">\n<param name=\"Name\" value=\"" + name + "\">\n" +
         (target.empty() ? "" : "<param name=\"Local\" value=\"" + target + "\">\n") +
         "</object>\n";
}

std::string SitemapFile(const std::string& entries) {
  return "<!DOCTYPE HTML PUBLIC \"-//IETF//DTD HTML//EN\">\n<html>\n<body>\n<ul>\n" + entries +
         "</ul>\n</body>\n</html>\n";
}

std::string ContentsFile(const Pages& pages) {
  std::string entries;
  for (const Chapter& chapter : Chapters()) {
    std::string items;
    for (const std::string& page : chapter.pages) {
      items += Sitemap(TitleOf(page, pages.at(page)), page);
    }
    entries +=
        chapter.title.empty() ? items : Sitemap(chapter.title, "") + "<ul>\n" + items + "</ul>\n";
  }
  return SitemapFile(entries);
}

// Letter case does not count in the order of an index.
struct AsInAnIndex {
  bool operator()(const std::string& a, const std::string& b) const {
    const auto lower = [](std::string text) {
      for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
      return text;
    };
    return std::pair(lower(a), a) < std::pair(lower(b), b);
  }
};

std::string IndexFile(const Pages& pages) {
  std::map<std::string, std::string, AsInAnIndex> entries;
  // What is said first counts, so that a page is found under its own title.
  for (const auto& [name, page] : pages) entries.emplace(TitleOf(name, page), name);
  for (const auto& [name, page] : pages) {
    for (const std::string& word : KeywordsOf(page)) entries.emplace(Escaped(word), name);
  }
  for (const MenuTopic& topic : MenuTopics()) {
    const size_t last = topic.path.rfind(" > ");
    const std::string item = topic.path.substr(last + 3) + " (menu " +
                             topic.path.substr(0, topic.path.find(" > ")) + ")";
    entries.emplace(Escaped(item), topic.page);
  }
  for (const WindowTopic& topic : WindowTopics()) {
    Open(topic, [&](const Platform::Form& form) {
      const std::string name = topic.heading.empty() ? form.title() : topic.heading;
      entries.emplace(Escaped(name) + " (window)", "windows.html#" + topic.form);
    });
  }
  std::string text;
  for (const auto& [name, target] : entries) text += Sitemap(name, target);
  return SitemapFile(text);
}

std::string CompilerProject() {
  std::string project =
      "[OPTIONS]\n"
      // In their binary forms the compiler writes bytes that no two runs have alike. The viewer
      // reads the files themselves.
      "Binary Index=No\n"
      "Binary TOC=No\n"
      "Compatibility=1.1 or later\n"
      "Compiled file=sk2pack.chm\n"
      "Contents file=contents.hhc\n"
      "Default topic=" +
      FirstPage +
      "\n"
      "Default window=main\n"
      "Full-text search=Yes\n"
      "Index file=index.hhk\n"
      "Language=0x409 English (United States)\n"
      "Title=Skidrun2 Utility Pack\n"
      "\n"
      // With contents, index and search beside the page, and a title bar that tells the page.
      "[WINDOWS]\n"
      "main=\"Skidrun2 Utility Pack\",\"contents.hhc\",\"index.hhk\",\"" +
      FirstPage + "\",\"" + FirstPage +
      "\",,,,,0x2520,,0x304e,,,,,,,,0\n"
      "\n"
      "[FILES]\n";
  for (const Chapter& chapter : Chapters()) {
    for (const std::string& page : chapter.pages) project += page + "\n";
  }
  return project;
}

std::string BytesOf(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace

const std::vector<Chapter>& Chapters() {
  static const std::vector<Chapter> all{
      {"", {FirstPage}},
      {"The pack and its keys",
       {"installing.html", "main-window.html", "menus.html", "windows.html", "keyboard.html"}},
      {"Vehicles",
       {"vehicle-editor.html", "internal-sounds.html", "check-vehicle.html",
        "vehicle-format.html"}},
      {"Tracks",
       {"track-editor.html", "random-track.html", "check-track.html", "track-format.html"}},
      {"Packages", {"packaging.html", "recording.html"}},
      {"The game", {"records.html", "game-language.html"}},
      {"The internet",
       {"server-list.html", "public-address.html", "add-ons.html", "updates.html",
        "web-sites.html"}},
      {"For authors, makers and translators",
       {"check-files.html", "publishing.html", "language.html"}},
      {"", {"trouble.html"}},
  };
  return all;
}

std::map<std::string, std::string> ProjectFiles(const Pages& pages) {
  return {{"contents.hhc", ContentsFile(pages)},
          {"index.hhk", IndexFile(pages)},
          {"sk2pack.hhp", CompilerProject()}};
}

std::map<std::string, std::string> Generate(const fs::path& folder) {
  const std::set<std::string> generated{"keyboard.html", "menus.html", "windows.html"};
  Pages pages;
  Titles titles;
  for (const auto& entry : fs::directory_iterator(folder)) {
    const std::string name = entry.path().filename().string();
    if (entry.path().extension() != ".html" || generated.contains(name)) continue;
    pages[name] = BytesOf(entry.path());
    titles[name] = TitleOf(name, pages[name]);
  }
  Pages all = TablePages(titles);
  pages.insert(all.begin(), all.end());
  all.merge(ProjectFiles(pages));
  return all;
}

}  // namespace Help
