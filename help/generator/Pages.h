// The pages that are written from the program's own tables, and the files that make one help of
// all pages.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace Help {

struct Chapter {
  std::string title;
  std::vector<std::string> pages;
};
// The order in which the pages are read. Each page has its place here.
const std::vector<Chapter>& Chapters();
inline const std::string FirstPage = "index.html";

using Pages = std::map<std::string, std::string>;   // what stands in each page, by its name
using Titles = std::map<std::string, std::string>;  // the same of the titles

// The pages written from tables: keyboard.html, menus.html, windows.html.
//   titles  of the pages that are written by hand. Throws std::out_of_range if a topic is on none
//           of them, std::runtime_error if an item of the menu bar has no topic.
Pages TablePages(const Titles& titles);

// What holds the pages together: contents.hhc, index.hhk, sk2pack.hhp. A page is found in the index
// under its title, under each of its keywords, which are separated by "; ", and under what the
// program calls its windows and menu items.
//   pages  all of them. Throws std::runtime_error if one has no title.
std::map<std::string, std::string> ProjectFiles(const Pages& pages);

// Everything that is generated, by its file name, from the pages written by hand.
//   folder  where those stand.
std::map<std::string, std::string> Generate(const std::filesystem::path& folder);

// A text as it stands in a page.
std::string Escaped(const std::string& text);

}  // namespace Help
