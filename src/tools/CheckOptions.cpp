#include "tools/CheckOptions.h"

#include <string_view>

namespace {

constexpr std::string_view Help =
    R"(sk2check - judges vehicles, tracks and packages as the Skidrun2 Utility Pack does

  sk2check [OPTION]... FILE-OR-FOLDER...

Each file is judged by what its name says:
  .vhc           a vehicle, with the sounds that it names, which lie beside it
  .trk           a track
  .zip           a package: safe to unpack, and with one vehicle or one track in it that has no
                 fault and all the sounds that it names
  .lng           a language file of the pack
  highscore.cfg  the records of the game
Of a folder, and of all folders in it, the files with such names are judged; what begins with "."
and links to other folders are passed over.

Every fault is printed as "FILE:LINE: MESSAGE", of a file in a package as
"PACKAGE: FILE:LINE: MESSAGE". How many files were judged is said on standard error.

Options:
  --first            stop in each file where the pack stops, at the first fault, and print what the
                     pack says of it, of a file without a fault too
  --format=FORMAT    plain (as above), github (annotations for a workflow of GitHub), json
  --json             the same as --format=json
  --language FILE    print the pack's messages in the language of that language file
  --as=KIND          judge all files that are named here, whatever their names are, as: vehicle,
                     track, package, archive (a package of anything), language, records
  -q, --quiet        do not say how many files were judged
  --version          print the version
  -h, --help         print this text
  --                 what follows is a file or a folder, even if it begins with "-"

The exit status is 0 if there is no fault, 1 if there is one, and 2 if something could not be looked
at, or there was nothing to look at.

What is printed is UTF-8. The files themselves are in the code page 1252, as the game reads them.
"\" and "/" both stand between folders, and letter case is disregarded, in what files name as well.
)";

// The value of "--name=value"; nothing if the argument is another.
std::optional<std::string> ValueOf(const std::string& argument, std::string_view name) {
  if (!argument.starts_with(name) || argument.size() <= name.size() ||
      argument[name.size()] != '=') {
    return std::nullopt;
  }
  return argument.substr(name.size() + 1);
}

std::optional<CheckOptions::Format> FormatNamed(std::string_view name) {
  if (name == "plain") return CheckOptions::Format::Plain;
  if (name == "github") return CheckOptions::Format::GitHub;
  if (name == "json") return CheckOptions::Format::Json;
  return std::nullopt;
}

// Takes one option. Returns what is wrong with it; empty if nothing is.
//   next  the argument behind it, for those that take one; set to null if it was taken.
std::string TakeOption(const std::string& option, const std::string*& next, CheckOptions& options) {
  const auto valueOf = [&](std::string_view name) {
    auto value = ValueOf(option, name);
    if (!value && option == name && next) {
      value = *next;
      next = nullptr;
    }
    return value;
  };
  const auto is = [&](std::string_view name) {
    return option == name || option.starts_with(std::string(name) + "=");
  };
  if (option == "-h" || option == "--help") {
    options.wantsHelp = true;
  } else if (option == "--version") {
    options.wantsVersion = true;
  } else if (option == "-q" || option == "--quiet") {
    options.isQuiet = true;
  } else if (option == "--first") {
    options.isFirstOnly = true;
  } else if (option == "--json") {
    options.format = CheckOptions::Format::Json;
  } else if (is("--format")) {
    const auto format = FormatNamed(valueOf("--format").value_or(""));
    if (!format) return "The format is plain, github or json.";
    options.format = *format;
  } else if (is("--as")) {
    options.kind = KindNamed(valueOf("--as").value_or(""));
    if (!options.kind) {
      return "What --as names is vehicle, track, package, archive, language or records.";
    }
  } else if (is("--language")) {
    options.language = valueOf("--language").value_or("");
    if (options.language.empty()) return "Behind --language stands a language file.";
  } else {
    return "There is no option " + option + ".";
  }
  return "";
}

}  // namespace

std::optional<CheckOptions> ParseCheckOptions(const std::vector<std::string>& arguments,
                                              std::string& fault) {
  CheckOptions options;
  bool isBehindOptions = false;
  for (size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    if (isBehindOptions || !argument.starts_with('-')) {
      options.paths.push_back(argument);
    } else if (argument == "--") {
      isBehindOptions = true;
    } else {
      const std::string* next = i + 1 < arguments.size() ? &arguments[i + 1] : nullptr;
      const bool hasNext = next != nullptr;
      fault = TakeOption(argument, next, options);
      if (!fault.empty()) return std::nullopt;
      if (hasNext && !next) ++i;
    }
  }
  if (options.paths.empty() && !options.wantsHelp && !options.wantsVersion) {
    fault = "Nothing is named that could be checked.";
    return std::nullopt;
  }
  return options;
}

std::string CheckHelp() {
  return std::string(Help);
}
