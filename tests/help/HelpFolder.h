// The pages of the help, as they stand in the project.
#pragma once

#include <filesystem>
#include <map>
#include <regex>
#include <string>
#include <vector>

#include "tests/ProjectFile.h"

namespace HelpFolder {

inline std::string BytesOf(const std::string& name) {
  return ProjectFile::BytesOf("help/" + name);
}

// Every page, by its name.
inline std::map<std::string, std::string> Pages() {
  std::map<std::string, std::string> pages;
  for (const auto& entry : std::filesystem::directory_iterator(ProjectFile::Root / "help")) {
    const std::string name = entry.path().filename().string();
    if (entry.path().extension() == ".html") pages[name] = BytesOf(name);
  }
  return pages;
}

// The first group of every match, in order.
inline std::vector<std::string> Matches(const std::string& text, const char* pattern) {
  const std::regex regex(pattern);
  std::vector<std::string> found;
  for (std::sregex_iterator match(text.begin(), text.end(), regex), end; match != end; ++match) {
    found.push_back((*match)[1]);
  }
  return found;
}

// What a reader reads of a part of a page: without tags, with single blanks.
inline std::string Read(const std::string& html) {
  std::string text = std::regex_replace(html, std::regex("<[^>]*>"), "");
  text = std::regex_replace(text, std::regex("\\s+"), " ");
  for (const auto& [entity, character] :
       std::map<std::string, std::string>{{"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}}) {
    text = std::regex_replace(text, std::regex(entity), character);
  }
  return std::regex_replace(text, std::regex("&amp;"), "&");
}

}  // namespace HelpFolder
