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
    for (const char* folder :
         {"src", "tests", "e2e", "bench", "fuzz", "help", "languages", "resources", "orec"}) {
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

// The floors of the program, the lowest first. A file includes from its own folder and from the
// floors below; folders of the same floor do not know each other.
struct Floor {
  const char* folder;
  int height;
};
constexpr int Tools = 5;
constexpr int ConsolePrograms = 7;
constexpr Floor Floors[] = {
    {"src/base/", 0},          {"src/platform/", 1},     {"src/archive/", 2},
    {"src/text/", 2},          {"src/ui/", 3},           {"src/game/", 4},
    {"src/vehicles/", Tools},  {"src/tracks/", Tools},   {"src/records/", Tools},
    {"src/packaging/", Tools}, {"src/internet/", Tools}, {"src/update/", Tools},
    {"src/language/", Tools},  {"src/app/", 6},          {"src/tools/", ConsolePrograms},
};

// Each machine stands beside the floors up to the windows, whose seams it implements.
constexpr const char* Machines[] = {"src/machine/win32/", "src/machine/simulated/",
                                    "src/machine/posix/", "src/machine/openssl/"};
constexpr int HighestUnderMachines = 3;
// What the machines that Linux has share.
constexpr const char* SharedOnLinux = "src/machine/openssl/";

const Floor* FloorOf(const std::string& path) {
  for (const Floor& floor : Floors) {
    if (path.starts_with(floor.folder)) return &floor;
  }
  return nullptr;
}

const char* MachineOf(const std::string& path) {
  for (const char* machine : Machines) {
    if (path.starts_with(machine)) return machine;
  }
  return nullptr;
}

// Packages are made of vehicles and of tracks; an update is a download like any other.
bool KnowsTheOther(const Floor& from, const Floor& to) {
  const std::string own = from.folder;
  const std::string other = to.folder;
  if (own == "src/packaging/") return other == "src/vehicles/" || other == "src/tracks/";
  return own == "src/update/" && other == "src/internet/";
}

// What the real machine knows of the recording library.
constexpr const char* RecordingLibrary = "orec/orec.h";

bool MayInclude(const std::string& from, const std::string& to) {
  if (to == std::string("src/") + RecordingLibrary) return IsIn(from, "src/machine/win32");
  const Floor* const below = FloorOf(to);
  if (const char* machine = MachineOf(from)) {
    if (to.starts_with(SharedOnLinux)) return !IsIn(from, "src/machine/win32");
    return to.starts_with(machine) || (below && below->height <= HighestUnderMachines);
  }
  const Floor* const own = FloorOf(from);
  if (!own || !below) return false;
  return own == below || below->height < own->height || KnowsTheOther(*own, *below);
}

TEST(SourceTree, IsThere) {
  EXPECT_GT(AllFiles().size(), 100u);
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
  // Made when the build is configured.
  const std::set<std::string> generated = {"game/Addresses.h", "tests/ProjectFolder.h"};
  for (const SourceFile& file : AllFiles()) {
    for (const std::string& name : file.quoted) {
      EXPECT_TRUE(!Included(file, name).empty() || generated.count(name))
          << file.path << " includes " << name;
    }
  }
}

TEST(SourceTree, EveryFileOfTheProgramStandsOnAFloorOrInAMachine) {
  for (const SourceFile& file : AllFiles()) {
    if (!IsIn(file.path, "src")) continue;
    EXPECT_TRUE(FloorOf(file.path) || MachineOf(file.path)) << file.path;
  }
}

TEST(SourceTree, IncludesGoDownOrStayInTheirFolder) {
  int includes = 0;
  for (const SourceFile& file : AllFiles()) {
    if (!IsIn(file.path, "src")) continue;
    for (const std::string& name : file.quoted) {
      EXPECT_TRUE(MayInclude(file.path, "src/" + name)) << file.path << " includes " << name;
      ++includes;
    }
  }
  EXPECT_GT(includes, 300);
}

TEST(SourceTree, TheFloorsForbidWhatTheyShould) {
  EXPECT_TRUE(MayInclude("src/app/Interface.cpp", "src/tracks/Trackmaker.h"));
  EXPECT_TRUE(MayInclude("src/packaging/Packager.cpp", "src/tracks/TrackFormat.h"));
  EXPECT_TRUE(MayInclude("src/machine/win32/Files.cpp", "src/ui/Forms.h"));
  EXPECT_FALSE(MayInclude("src/tracks/TrackManager.cpp", "src/app/Interface.h"));
  EXPECT_FALSE(MayInclude("src/tracks/TrackManager.cpp", "src/vehicles/CarManager.h"));
  EXPECT_FALSE(MayInclude("src/tracks/TrackFormat.h", "src/packaging/Packager.h"));
  EXPECT_FALSE(MayInclude("src/text/StringTable.cpp", "src/ui/Forms.h"));
  EXPECT_FALSE(MayInclude("src/text/StringTable.cpp", "src/archive/Zip.h"));
  EXPECT_FALSE(MayInclude("src/platform/Files.h", "src/machine/win32/Failure.h"));
  EXPECT_FALSE(MayInclude("src/machine/simulated/Disk.cpp", "src/machine/win32/Failure.h"));
  EXPECT_FALSE(MayInclude("src/machine/simulated/Machine.cpp", "src/game/Application.h"));
  EXPECT_FALSE(MayInclude("src/machine/posix/Files.cpp", "src/machine/win32/Failure.h"));
  EXPECT_FALSE(MayInclude("src/app/Interface.cpp", "src/tools/CheckRun.h"));
}

// They are built without windows and without a game: of all the floors they take the formats alone.
TEST(SourceTree, TheConsoleProgramsKnowNoWindowAndNoGame) {
  int files = 0;
  for (const SourceFile& file : AllFiles()) {
    const bool isOfTheMachine = IsIn(file.path, "src/machine/posix");
    if (!IsIn(file.path, "src/tools") && !isOfTheMachine) continue;
    ++files;
    for (const std::string& name : file.quoted) {
      EXPECT_FALSE(IsIn(name, "ui") || IsIn(name, "game")) << file.path << " includes " << name;
      // The list of all texts, by which a language file is judged.
      EXPECT_TRUE(!IsIn(name, "app") || name == "app/LanguageTemplate.h") << file.path;
    }
  }
  EXPECT_GT(files, 15);
}

// --- Circles ---

// A header and its source are one module: what both are called without their extension.
std::string ModuleOf(const std::string& path) {
  return path.substr(0, path.rfind('.'));
}

std::string FolderOf(const std::string& path) {
  return path.substr(0, path.rfind('/'));
}

// Which modules of the program a module leads to, itself included if a circle leads back to it.
using Reach = std::map<std::string, std::set<std::string>>;

Reach ReachOfModules() {
  Reach next;
  for (const SourceFile& file : AllFiles()) {
    if (!IsIn(file.path, "src")) continue;
    for (const std::string& name : file.quoted) {
      const std::string to = ModuleOf("src/" + name);
      if (to != ModuleOf(file.path)) next[ModuleOf(file.path)].insert(to);
    }
  }
  Reach reach;
  for (const auto& [from, direct] : next) {
    std::vector<std::string> open(direct.begin(), direct.end());
    while (!open.empty()) {
      const std::string module = open.back();
      open.pop_back();
      if (!reach[from].insert(module).second) continue;
      open.insert(open.end(), next[module].begin(), next[module].end());
    }
  }
  return reach;
}

// What a folder's core is, by the document: the modules that its line "The core of `FOLDER`" names.
std::set<std::string> DocumentedCore(const std::string& folder) {
  std::set<std::string> core;
  const std::string start = "The core of `" + folder.substr(std::string("src/").size()) + "`";
  for (const std::string& paragraph :
       Texts::Split(ProjectFile::BytesOf("docs/architecture.md"), "\n\n")) {
    const size_t at = paragraph.find(start);
    if (at == std::string::npos) continue;
    const std::regex quoted("`(\\w+)`");
    const std::string names = paragraph.substr(at + start.size());
    for (std::sregex_iterator found(names.begin(), names.end(), quoted), end; found != end;
         ++found) {
      core.insert(folder + "/" + (*found)[1].str());
    }
  }
  return core;
}

// The window kit and the machines may each have one core of modules that know each other, if the
// document says which they are and why. Everywhere else modules form no circle.
TEST(SourceTree, ModulesFormNoCircleButTheDocumentedCores) {
  const Reach reach = ReachOfModules();
  for (const auto& [module, reached] : reach) {
    if (!reached.count(module)) continue;
    const std::string folder = FolderOf(module);
    EXPECT_TRUE(folder == "src/ui" || IsIn(folder, "src/machine")) << module << " leads to itself";
    EXPECT_TRUE(DocumentedCore(folder).count(module))
        << module << " leads to itself, and docs/architecture.md does not say so";
  }
  for (const char* folder : {"src/ui", "src/machine/win32", "src/machine/simulated"}) {
    for (const std::string& module : DocumentedCore(folder)) {
      EXPECT_TRUE(reach.count(module) && reach.at(module).count(module))
          << module << " is no part of a core any more";
    }
  }
}

TEST(SourceTree, AToolNamesNeitherTheMainWindowNorItsOpener) {
  for (const SourceFile& file : AllFiles()) {
    const Floor* const floor = FloorOf(file.path);
    if (!floor || floor->height > Tools || floor->height <= HighestUnderMachines) continue;
    EXPECT_FALSE(Texts::Contains(ProjectFile::BytesOf(file.path), "MainForm")) << file.path;
  }
}

TEST(SourceTree, OnlyTheRealMachineKnowsWindowsHeaders) {
  // Headers of the C++ library have no extension. These others are not of Windows.
  const auto isOfWindows = [](const std::string& name) {
    return name.ends_with(".h") && name != "zlib.h" && name != "cxxabi.h" && name != "unistd.h" &&
           name != "stdint.h" && !IsIn(name, "sys") && !IsIn(name, "openssl") &&
           !IsIn(name, "gtest") && !IsIn(name, "gmock");
  };
  for (const SourceFile& file : AllFiles()) {
    if (IsIn(file.path, "src/machine/win32") || IsIn(file.path, "src/machine/posix") ||
        IsIn(file.path, "orec/win32") || IsIn(file.path, "e2e") || IsIn(file.path, "bench/start") ||
        Texts::Contains(file.path, "/RealMachine") || Texts::Contains(file.path, "/PosixMachine")) {
      continue;
    }
    for (const std::string& name : file.system) {
      EXPECT_FALSE(isOfWindows(name)) << file.path << " includes " << name;
    }
  }
}

// It is a product of its own: whoever has the folder has all of it.
TEST(SourceTree, TheRecordingLibraryKnowsNothingOfTheProgram) {
  int includes = 0;
  for (const SourceFile& file : AllFiles()) {
    if (!IsIn(file.path, "orec")) continue;
    for (const std::string& name : file.quoted) {
      EXPECT_TRUE(IsIn(name, "orec")) << file.path << " includes " << name;
      EXPECT_TRUE(!IsIn(name, "orec/win32") || IsIn(file.path, "orec/win32")) << file.path;
      ++includes;
    }
  }
  EXPECT_GT(includes, 20);
}

TEST(SourceTree, NoConditionOnTheMachineStandsOutsideOfIt) {
  for (const SourceFile& file : AllFiles()) {
    if (!IsIn(file.path, "src") || IsIn(file.path, "src/machine/win32")) continue;
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
    if (!IsIn(file.path, "src/machine/win32")) continue;
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
    // What gives the foreground to another program takes nothing.
    const std::string text =
        Text::Replace(ProjectFile::BytesOf(path), "AllowSetForegroundWindow", "");
    EXPECT_NE(text, "") << path;
    ++files;
    for (const char* taken : {"TOPMOST", "RegisterHotKey", "SetForegroundWindow", "BlockInput",
                              "requireAdministrator", "highestAvailable"}) {
      EXPECT_FALSE(Texts::Contains(text, taken)) << path << " has " << taken;
    }
    // A hook of the program's own thread sees nothing of others.
    static const std::regex ownHook(
        R"(SetWindowsHookExA\([^;]*, nullptr, GetCurrentThreadId\(\)\))");
    EXPECT_FALSE(Texts::Contains(std::regex_replace(text, ownHook, ""), "SetWindowsHook")) << path;
  };
  for (const SourceFile& file : AllFiles()) {
    if (IsIn(file.path, "src")) expectNone(file.path);
  }
  expectNone("resources/sk2pack.manifest");
  EXPECT_GT(files, 50);
}

// The rules of accessibility are checked in the windows that the tests of the program can open.
TEST(SourceTree, EveryWindowIsOneThatTheTestsOfTheProgramOpen) {
  // Bases; the main window; and windows that are opened where they are tested: those that record,
  // which have no controls, and the one that stands there only while the pack is busy.
  const std::set<std::string> others = {"Chooser", "WavOptions", "SK2UtilityPack",
                                        "RecordingWindow", "Progress"};
  const std::string openings = ProjectFile::BytesOf("e2e/Openings.cpp");
  const std::regex window(
      "class (\\w+) (?:final )?: public (?:Platform::)?(?:Form|Chooser|InputBox|WavOptions)\\b");
  std::set<std::string> windows;
  for (const SourceFile& file : AllFiles()) {
    if (!IsIn(file.path, "src") || IsIn(file.path, "src/ui")) continue;
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
