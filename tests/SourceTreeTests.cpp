// Rules of the source tree that a machine can check: who may include whom, and what no header may
// be called.
#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "base/Text.h"
#include "tests/ProjectFile.h"
#include "tests/Texts.h"

namespace {

namespace fs = std::filesystem;

struct SourceFile {
  std::string path;                 // from the root of the tree, with "/"
  std::vector<std::string> quoted;  // what it includes, as written: "..."
  std::vector<std::string> system;  // <...>
};

SourceFile Read(const fs::path& path) {
  SourceFile file{fs::relative(path, ProjectFile::Root).generic_string(), {}, {}};
  std::ifstream stream(path);
  for (std::string line; std::getline(stream, line);) {
    std::istringstream words(line);
    std::string name;
    std::string hash;
    if (!(words >> hash) || !hash.starts_with('#')) continue;
    if (hash == "#") words >> name;
    if (hash != "#include" && name != "include") continue;
    const size_t begin = line.find_first_of("\"<");
    const size_t end = line.find_last_of("\">");
    if (begin == std::string::npos || end <= begin) continue;
    auto& list = line[begin] == '"' ? file.quoted : file.system;
    list.push_back(line.substr(begin + 1, end - begin - 1));
  }
  return file;
}

const std::vector<SourceFile>& AllFiles() {
  static const std::vector<SourceFile> files = [] {
    std::vector<SourceFile> all;
    for (const char* folder : {"src", "tests", "e2e", "bench", "fuzz", "languages"}) {
      if (!fs::exists(ProjectFile::Root / folder)) continue;
      for (const auto& entry : fs::recursive_directory_iterator(ProjectFile::Root / folder)) {
        const std::string extension = entry.path().extension().string();
        if (extension == ".h" || extension == ".cpp") all.push_back(Read(entry.path()));
      }
    }
    return all;
  }();
  return files;
}

bool IsIn(const std::string& path, const char* folder) {
  return path.starts_with(std::string(folder) + "/");
}

// The program's own layers, the lowest first. A file includes from its own layer and lower ones. A
// prefix of a path that stands further up wins.
struct Layer {
  const char* prefix;
  int height;
};
constexpr int Leaves = 2;  // what all tools use: they may know each other, but not in a circle
constexpr int Tools = 3;
constexpr int App = 4;
constexpr Layer Layers[] = {
    {"src/base/", 0},
    {"src/platform/", 1},
    {"src/text/Messages", Leaves},
    {"src/text/StringTable", Leaves},
    {"src/app/AppTexts", Leaves},
    {"src/app/Application", Leaves},
    {"src/app/CheckReport", Leaves},
    {"src/app/FileDialog", Leaves},
    {"src/app/Program", Leaves},
    {"src/app/Registry", Leaves},
    {"src/text/", Tools},
    {"src/vehicles/", Tools},
    {"src/tracks/", Tools},
    {"src/packaging/", Tools},
    {"src/records/", Tools},
    {"src/internet/", Tools},
    {"src/update/", Tools},
    {"src/app/", App},
};

int HeightOf(const std::string& path) {
  for (const auto& [prefix, height] : Layers) {
    if (path.starts_with(prefix)) return height;
  }
  return -1;
}

TEST(SourceTree, IsThere) {
  EXPECT_GT(AllFiles().size(), 100u);
}

TEST(SourceTree, EveryFileOfTheProgramIsInALayer) {
  for (const SourceFile& file : AllFiles()) {
    if (IsIn(file.path, "src")) {
      EXPECT_GE(HeightOf(file.path), 0) << file.path;
    }
  }
}

TEST(SourceTree, NoFileIncludesAHigherLayer) {
  for (const SourceFile& file : AllFiles()) {
    for (const std::string& name : file.quoted) {
      if (!IsIn(file.path, "src")) continue;
      EXPECT_LE(HeightOf("src/" + name), HeightOf(file.path)) << file.path << " includes " << name;
    }
  }
}

// The file of ours that a file means by a name in quotes, as its path from the root; empty if there
// is none with that letter case.
std::string Included(const SourceFile& file, const std::string& name) {
  static const std::set<std::string> paths = [] {
    std::set<std::string> all;
    for (const SourceFile& each : AllFiles()) all.insert(each.path);
    return all;
  }();
  const std::string beside = fs::path(file.path).parent_path().generic_string() + "/" + name;
  for (const std::string& path : {"src/" + name, name, beside}) {
    if (paths.count(path)) return path;
  }
  return "";
}

TEST(SourceTree, EveryIncludedFileOfOursIsThereWithThatLetterCase) {
  const std::string generated = "app/Addresses.h";
  for (const SourceFile& file : AllFiles()) {
    for (const std::string& name : file.quoted) {
      EXPECT_TRUE(!Included(file, name).empty() || name == generated)
          << file.path << " includes " << name;
    }
  }
}

TEST(SourceTree, IncludesFormNoCircle) {
  std::map<std::string, std::vector<std::string>> includes;
  for (const SourceFile& file : AllFiles()) {
    for (const std::string& name : file.quoted) {
      includes[file.path].push_back(Included(file, name));
    }
  }
  std::set<std::string> finished;
  std::vector<std::string> trail;
  const auto visit = [&](const auto& self, const std::string& path) -> void {
    if (finished.count(path)) return;
    if (std::find(trail.begin(), trail.end(), path) != trail.end()) {
      ADD_FAILURE() << testing::PrintToString(trail) << " lead back to " << path;
      return;
    }
    trail.push_back(path);
    for (const std::string& next : includes[path]) self(self, next);
    trail.pop_back();
    finished.insert(path);
  };
  for (const SourceFile& file : AllFiles()) visit(visit, file.path);
}

TEST(SourceTree, AToolKnowsNeitherTheMainWindowNorTheMenuActions) {
  for (const SourceFile& file : AllFiles()) {
    if (!IsIn(file.path, "src") || HeightOf(file.path) >= App) continue;
    EXPECT_THAT(file.quoted, testing::Not(testing::Contains("app/SK2UtilityPack.h"))) << file.path;
    EXPECT_THAT(file.quoted, testing::Not(testing::Contains("app/Interface.h"))) << file.path;
  }
}

TEST(SourceTree, OnlyTheRealMachineKnowsWindowsHeaders) {
  // Headers of the C++ library have no extension. These others are not of Windows.
  const auto isOfWindows = [](const std::string& name) {
    return name.ends_with(".h") && name != "zlib.h" && name != "unistd.h" && !IsIn(name, "sys") &&
           !IsIn(name, "gtest") && !IsIn(name, "gmock");
  };
  for (const SourceFile& file : AllFiles()) {
    if (IsIn(file.path, "src/platform/win32") || IsIn(file.path, "e2e") ||
        Texts::Contains(file.path, "/RealMachine")) {
      continue;
    }
    for (const std::string& name : file.system) {
      EXPECT_FALSE(isOfWindows(name)) << file.path << " includes " << name;
    }
  }
}

TEST(SourceTree, TheProgramKnowsItsMachineByTheSharedHeadersAlone) {
  for (const SourceFile& file : AllFiles()) {
    if (!IsIn(file.path, "src") || IsIn(file.path, "src/platform/win32") ||
        IsIn(file.path, "src/platform/simulated")) {
      continue;
    }
    for (const std::string& name : file.quoted) {
      EXPECT_FALSE(IsIn(name, "platform/simulated")) << file.path << " includes " << name;
      EXPECT_FALSE(IsIn(name, "platform/win32")) << file.path << " includes " << name;
    }
  }
}

TEST(SourceTree, NoConditionOnTheMachineStandsOutsideOfIt) {
  for (const SourceFile& file : AllFiles()) {
    if (!IsIn(file.path, "src") || IsIn(file.path, "src/platform/win32")) continue;
    EXPECT_FALSE(Texts::Contains(ProjectFile::BytesOf(file.path), "_WIN32")) << file.path;
  }
}

TEST(SourceTree, NoHeaderIsCalledLikeOneOfTheSystem) {
  const std::set<std::string> forbidden = {
      "assert.h",  "ctype.h",   "direct.h",   "dos.h",     "errno.h",  "fenv.h",   "float.h",
      "io.h",      "limits.h",  "locale.h",   "malloc.h",  "math.h",   "memory.h", "mmsystem.h",
      "process.h", "setjmp.h",  "shellapi.h", "signal.h",  "stdarg.h", "stddef.h", "stdint.h",
      "stdio.h",   "stdlib.h",  "string.h",   "strings.h", "tchar.h",  "time.h",   "uchar.h",
      "wchar.h",   "windows.h", "winuser.h",  "wininet.h", "urlmon.h", "zlib.h",   "zconf.h",
      "dsound.h",  "resource.h"};
  for (const SourceFile& file : AllFiles()) {
    const std::string name = Text::LowerAscii(fs::path(file.path).filename().string());
    EXPECT_FALSE(forbidden.count(name)) << file.path;
  }
}

TEST(SourceTree, EveryHeaderIsGuarded) {
  for (const SourceFile& file : AllFiles()) {
    if (!file.path.ends_with(".h")) continue;
    EXPECT_TRUE(Texts::Contains(ProjectFile::BytesOf(file.path), "#pragma once")) << file.path;
  }
}

// A table that is not listed would never reach the translators.
TEST(SourceTree, EveryTableOfTextsIsListedForTheTranslators) {
  const std::string list = "src/app/LanguageTemplate.cpp";
  const std::regex table("constexpr \\w+TextTable (\\w+);");
  int tables = 0;
  for (const SourceFile& file : AllFiles()) {
    if (!IsIn(file.path, "src")) continue;
    const std::string text = ProjectFile::BytesOf(file.path);
    for (std::sregex_iterator found(text.begin(), text.end(), table), end; found != end; ++found) {
      const std::string name = (*found)[1];
      EXPECT_TRUE(Texts::Contains(ProjectFile::BytesOf(list), "  add(" + name + ");")) << name;
      ++tables;
    }
  }
  EXPECT_GT(tables, 5);
}

// Colours are the user's own, high contrast included.
TEST(SourceTree, TheRealMachineHasNoColoursOfItsOwn) {
  for (const SourceFile& file : AllFiles()) {
    if (!IsIn(file.path, "src/platform/win32")) continue;
    const std::string text = ProjectFile::BytesOf(file.path);
    for (const char* colour : {"RGB(", "WM_CTLCOLOR", "CreateSolidBrush", "SetTextColor",
                               "SetBkColor", "NM_CUSTOMDRAW", "_OWNERDRAW"}) {
      EXPECT_FALSE(Texts::Contains(text, colour)) << file.path << " has " << colour;
    }
  }
}

// What takes the keyboard or the screen away from a screen reader and from other programs.
TEST(SourceTree, TheProgramTakesNothingFromOthers) {
  int files = 0;
  const auto expectNone = [&](const std::string& path) {
    const std::string text = ProjectFile::BytesOf(path);
    EXPECT_NE(text, "") << path;
    ++files;
    for (const char* taken : {"TOPMOST", "RegisterHotKey", "SetWindowsHook", "SetForegroundWindow",
                              "BlockInput", "requireAdministrator", "highestAvailable"}) {
      EXPECT_FALSE(Texts::Contains(text, taken)) << path << " has " << taken;
    }
  };
  for (const SourceFile& file : AllFiles()) {
    if (IsIn(file.path, "src")) expectNone(file.path);
  }
  expectNone("resources/sk2pack.manifest");
  EXPECT_GT(files, 50);
}

// The rules of accessibility are checked in the windows that the tests of the program can open.
TEST(SourceTree, EveryWindowIsOneThatTheTestsOfTheProgramOpen) {
  const std::set<std::string> others = {"Chooser", "SK2UtilityPack"};  // a base, the main window
  const std::string openings = ProjectFile::BytesOf("e2e/Openings.cpp");
  const std::regex window(
      "class (\\w+) (?:final )?: public (?:Platform::)?(?:Form|Chooser|InputBox)\\b");
  std::set<std::string> windows;
  for (const SourceFile& file : AllFiles()) {
    if (!IsIn(file.path, "src") || IsIn(file.path, "src/platform")) continue;
    const std::string text = ProjectFile::BytesOf(file.path);
    for (std::sregex_iterator found(text.begin(), text.end(), window), end; found != end; ++found) {
      windows.insert((*found)[1]);
    }
  }
  EXPECT_THAT(windows, testing::IsSupersetOf({"SK2UtilityPack", "NewWhat", "HighScores"}));
  for (const std::string& name : windows) {
    if (others.count(name)) continue;
    EXPECT_TRUE(Texts::Contains(openings, "{\"" + name + "\","))
        << name << ": add it to Openings()";
  }
}

}  // namespace
