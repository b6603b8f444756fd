// Which libraries the pack loads: few before it opens, and Windows' own alone.
#include <cctype>
#include <cstring>

#include "e2e/driver/Opener.h"
#include "e2e/driver/PackTest.h"

namespace E2e {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

// The part of a program's file that comes to stand at an address, counted from the program's start.
// Throws std::out_of_range where the file does not have it.
template <class Part>
Part PartAt(const std::string& file, const IMAGE_NT_HEADERS64& headers, size_t firstSection,
            DWORD address) {
  const auto read = [&file](auto& part, size_t offset) {
    std::memcpy(&part, &file.at(offset + sizeof part - 1) - (sizeof part - 1), sizeof part);
  };
  for (WORD i = 0; i < headers.FileHeader.NumberOfSections; i++) {
    IMAGE_SECTION_HEADER section{};
    read(section, firstSection + i * sizeof section);
    if (address < section.VirtualAddress ||
        address - section.VirtualAddress >= section.SizeOfRawData)
      continue;
    Part part{};
    read(part, address - section.VirtualAddress + section.PointerToRawData);
    return part;
  }
  throw std::out_of_range("no section holds the address");
}

// The names of the libraries that a program is loaded with, in lower case and sorted.
std::vector<std::string> ImportedLibraries(const std::string& program) {
  const std::string file = ReadFile(program);
  IMAGE_DOS_HEADER start{};
  std::memcpy(&start, file.data(), sizeof start);
  IMAGE_NT_HEADERS64 headers{};
  std::memcpy(&headers, &file.at(static_cast<size_t>(start.e_lfanew)), sizeof headers);
  const size_t firstSection = static_cast<size_t>(start.e_lfanew) + sizeof headers;

  std::vector<std::string> names;
  DWORD address = headers.OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
  for (;; address += sizeof(IMAGE_IMPORT_DESCRIPTOR)) {
    const auto library = PartAt<IMAGE_IMPORT_DESCRIPTOR>(file, headers, firstSection, address);
    if (!library.Name) break;
    std::string name;
    for (DWORD at = library.Name;; at++) {
      const char c = PartAt<char>(file, headers, firstSection, at);
      if (!c) break;
      name += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    }
    names.push_back(name);
  }
  std::sort(names.begin(), names.end());
  return names;
}

// Each one more makes the pack open later. And Windows looks for these beside the program first,
// but for those that it has in every process, and for comctl32, which the manifest finds.
TEST(Libraries, OnlyWhatTheFirstWindowNeedsIsLoadedWithThePack) {
  EXPECT_THAT(ImportedLibraries(Given().pack + "\\sk2pack.exe"),
              ElementsAre("advapi32.dll", "comctl32.dll", "gdi32.dll", "kernel32.dll", "msvcrt.dll",
                          "user32.dll"));
}

// It finds the rest when it is used, in the system's own folder; nobody has to bring a run-time
// library of its compiler.
TEST(Libraries, TheRecordingLibraryStandsBesideThePackAndNeedsWindowsAlone) {
  EXPECT_THAT(ImportedLibraries(Given().pack + "\\orec.dll"),
              ElementsAre("kernel32.dll", "msvcrt.dll"));
}

std::string PlantedLibrary() {
  char path[MAX_PATH] = "";
  GetModuleFileNameA(nullptr, path, sizeof path);
  const std::string program = path;
  return program.substr(0, program.rfind('\\')) + "\\plantedlibrary.dll";
}

// Those that the program may want once its window is open. But for version.dll: under Wine the
// system's own windows need that one, and the pack does not start with another in its place. The
// test above sees to it that the program does not ask for it by name.
constexpr const char* LaterLibraries[] = {"bcrypt",  "comdlg32", "dsound",  "ole32", "oleaut32",
                                          "shell32", "urlmon",   "wininet", "winmm"};

class PlantedLibraries : public PackTest {
 protected:
  // Wine takes its own library for any of the same name, unless it is told to do as Windows does.
  PlantedLibraries()
      : overrides_(HKEY_CURRENT_USER, "Software\\Wine\\DllOverrides", KEY_WOW64_64KEY) {
    for (const char* name : LaterLibraries) overrides_.Set(name, "native,builtin");
  }

  static void Plant(const std::string& folder) {
    for (const char* name : LaterLibraries) {
      const std::string path = folder + "\\" + name + ".dll";
      ASSERT_TRUE(CopyFileA(PlantedLibrary().c_str(), path.c_str(), FALSE)) << path;
    }
  }

 private:
  RegistryKey overrides_;
};

// The other test shows nothing if they do not.
TEST_F(PlantedLibraries, LeaveAMarkWhereTheyAreLoaded) {
  Plant(scratch.path());
  const HMODULE loaded = LoadLibraryA((scratch.path() + "\\urlmon.dll").c_str());
  EXPECT_NE(loaded, nullptr);
  FreeLibrary(loaded);
  EXPECT_THAT(NamesIn(scratch.path()), Contains("urlmon.dll.loaded"));
}

// As they may lie in a folder of downloads, of which its user knows nothing.
TEST_F(PlantedLibraries, AreNotLoadedWhateverThePackDoes) {
  Plant(PutProgramFolder());
  // The blanks are for the system's parser of numbers: plain digits go without it.
  WriteFile(gameFolder() + "\\tracks\\blanks.trk", " 1 \r\n 0 \r\n 5000 \r\n-1\r\n1\r\n");
  const Opener opener(scratch.path());

  Pack& pack = StartPack();
  EXPECT_EQ(pack.WaitForMain().text(), "Skidrun2 Utility Pack V1.0");
  pack.ChooseMenu({"Track", "Check .trk file"});
  pack.ChooseFile("blanks.trk");
  EXPECT_EQ(pack.AnswerBox(),
            Information("File OK",
                        "5 lines, 1 parts, track file was checked successfully with no errors."));
  pack.ChooseMenu({"Internet", "Personal IP Viewer"});
  pack.WaitForWindow("Personal IP Viewer");
  pack.Press("Alt+C");
  pack.Press("Escape");
  pack.WaitForMain();
  // Last: the program that opens it may take the foreground.
  pack.ChooseMenu({"Help", "View Documentation"});
  EXPECT_EQ(opener.WaitForOpened(), programFolder() + "\\sk2pack.chm");

  EXPECT_THAT(NamesIn(programFolder()), Not(Contains(testing::EndsWith(".loaded"))));
}

}  // namespace
}  // namespace E2e
