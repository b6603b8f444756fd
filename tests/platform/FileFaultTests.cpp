// Every service of Files.h can be told to fail: stories about failures reach all of them.
#include <gmock/gmock.h>

#include <functional>
#include <map>
#include <regex>
#include <set>
#include <sstream>

#include "base/RuntimeError.h"
#include "machine/simulated/Machine.h"
#include "platform/Files.h"
#include "tests/ProjectFile.h"

namespace {

using namespace Platform;

const std::string Path = "C:\\hill.trk";

// The services, each as a call that fails by an exception or by what it returns. Returns true if it
// failed.
const std::map<std::string, std::function<bool()>>& Services() {
  static const std::map<std::string, std::function<bool()>> services = {
      {"FileExists", [] { return !FileExists(Path); }},
      {"StampOf", [] { return !StampOf(Path); }},
      {"AttributesOf", [] { return AttributesOf(Path).isReadOnly; }},
      {"SetAttributes",
       [] {
         SetAttributes(Path, {.isHidden = true});
         return false;
       }},
      {"ListFolder", [] { return ListFolder("C:").empty(); }},
      {"ReadWholeFile", [] { return !ReadWholeFile(Path); }},
      {"FileReader::FileReader",
       [] {
         FileReader reader(Path);
         return false;
       }},
      {"FileReader::Read",
       [] {
         char byte;
         return FileReader(Path).Read(&byte, 1) == 0;
       }},
      {"WriteWholeFile",
       [] {
         WriteWholeFile(Path, "2");
         return false;
       }},
      {"FileWriter::FileWriter",
       [] {
         FileWriter writer(Path);
         return false;
       }},
      {"FileWriter::Write",
       [] {
         FileWriter(Path).Write("2");
         return false;
       }},
      {"FileReader::Size", [] { return FileReader(Path).Size() == 0; }},
      {"FileReader::Seek",
       [] {
         FileReader(Path).Seek(0);
         return false;
       }},
      {"FileWriter::WriteOver",
       [] {
         FileWriter(Path).WriteOver(0, "2");
         return false;
       }},
      {"FileWriter::ReadBack",
       [] {
         char byte;
         FileWriter(Path).ReadBack(0, &byte, 1);
         return false;
       }},
      {"FileWriter::Finish",
       [] {
         FileWriter(Path).Finish();
         return false;
       }},
      {"AppendToFile",
       [] {
         AppendToFile(Path, "2");
         return false;
       }},
      {"CopyFileTo",
       [] {
         CopyFileTo(Path, "C:\\lake.trk");
         return false;
       }},
      {"RenameFile",
       [] {
         RenameFile(Path, "C:\\lake.trk");
         return false;
       }},
      {"RemoveFile", [] { return !RemoveFile(Path); }},
      {"RemoveFileOfEndingProgram", [] { return !RemoveFileOfEndingProgram(Path); }},
      {"MakeFolder", [] { return !MakeFolder("C:\\tracks"); }},
      {"RemoveFolder", [] { return !RemoveFolder("C:\\empty"); }},
      {"FreeSpaceIn", [] { return FreeSpaceIn("C:") == 0; }},
  };
  return services;
}

// What Files.h declares, members of its classes as "FileReader::Read".
std::set<std::string> Declared() {
  std::set<std::string> names;
  std::istringstream header(ProjectFile::BytesOf("src/platform/Files.h"));
  const std::regex declaration("^(  )?[A-Za-z][^(/]*?(\\w+)\\(.*");
  std::string inClass;
  for (std::string line; std::getline(header, line);) {
    std::smatch found;
    if (line.starts_with("class ")) inClass = line.substr(6, line.find(' ', 6) - 6);
    if (line.starts_with("};")) inClass.clear();
    if (!std::regex_match(line, found, declaration)) continue;
    const std::string name = found[2];
    // Moving a reader cannot fail.
    if (line.find("&&)") != std::string::npos) continue;
    names.insert(found[1].matched ? inClass + "::" + name : name);
  }
  return names;
}

TEST(FileFaults, EveryServiceOfTheHeaderIsTried) {
  auto declared = Declared();
  // It only notes what Finish does.
  EXPECT_EQ(declared.erase("FileWriter::SetLastWrite"), 1u);
  std::set<std::string> tried;
  for (const auto& [name, call] : Services()) tried.insert(name);
  EXPECT_EQ(tried, declared);
}

TEST(FileFaults, EveryServiceCanBeToldToFailAndKeepsItsCause) {
  for (const auto& [name, call] : Services()) {
    int failures = 0;
    for (bool isRefused = true; isRefused;) {
      Simulated::Machine machine;
      machine.files.Put(Path, "1");
      machine.files.PutFolder("C:\\empty");
      // A refusal that comes once is often made good by another try.
      machine.faults.RefuseFileCallsFrom(Simulated::After{failures}, SystemError::DeviceFailed);
      bool hasFailed = false;
      try {
        hasFailed = call();
      } catch (const RuntimeError& error) {
        hasFailed = true;
        EXPECT_NE(error.file(), "") << name;
        EXPECT_NE(error.system().step.english, nullptr) << name;
        EXPECT_EQ(error.system().code, 1117u) << name;
      }
      isRefused = hasFailed && !machine.faults.EndedAt().empty();
      failures += isRefused ? 1 : 0;
    }
    EXPECT_GT(failures, 0) << name << " cannot be told to fail";
  }
}

}  // namespace
