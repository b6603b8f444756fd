// Saves that are cut off or refused at every file call in turn, on both machines.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/Files.h"

struct SaveScenario {
  const char* name;
  std::optional<std::string> before;  // what the file holds; nothing if there is none
  std::string after;
  bool isHeld;  // by a program that lets others write, but not replace
  void (*save)(const std::string& path);
};

inline const std::vector<SaveScenario>& SaveScenarios() {
  using namespace Platform;
  static const std::vector<SaveScenario> scenarios = {
      {"make", std::nullopt, "new", false,
       [](const std::string& path) { WriteWholeFile(path, "new"); }},
      {"replace", "an old text", "new", false,
       [](const std::string& path) { WriteWholeFile(path, "new"); }},
      {"pieces", "an old text", "new pieces of text", false,
       [](const std::string& path) {
         FileWriter writer(path);
         writer.Write("new pieces");
         writer.Write(" of text");
         writer.Finish();
       }},
      {"append", "one\r\n", "one\r\ntwo\r\n", false,
       [](const std::string& path) { AppendToFile(path, "two\r\n"); }},
      {"copy", "an old copy", "the original", false,
       [](const std::string& path) { CopyFileTo(path + ".from", path, IfThere::Replace); }},
      {"lengthen", "old old old", "NEW NEW NEW NEW", true,
       [](const std::string& path) { WriteWholeFile(path, "NEW NEW NEW NEW"); }},
      {"shorten", "old old old old", "NEW NEW", true,
       [](const std::string& path) { WriteWholeFile(path, "NEW NEW"); }},
  };
  return scenarios;
}
