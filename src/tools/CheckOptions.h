// What sk2check is asked for on its command line.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "tools/FileKind.h"

struct CheckOptions {
  enum class Format {
    Plain,   // "file:line: message"
    GitHub,  // workflow commands, which that site shows beside the line
    Json,    // one document
  };

  std::vector<std::string> paths;  // files and folders, as they were given
  Format format = Format::Plain;
  std::string language;          // a language file; empty for English
  std::optional<FileKind> kind;  // what all named files are, whatever their names say
  bool isFirstOnly = false;      // stops in each file where the pack stops
  bool isQuiet = false;          // says nothing of how many files were checked
  bool wantsHelp = false;
  bool wantsVersion = false;
};

// Takes the arguments apart. Options begin with "-" and may stand anywhere; "--" ends them, so that
// a file may begin with "-" too.
//   fault  what is wrong with them, as an English sentence.
// Returns nothing if there is a fault.
std::optional<CheckOptions> ParseCheckOptions(const std::vector<std::string>& arguments,
                                              std::string& fault);

// What "--help" says.
std::string CheckHelp();
