// The shipped installer: what it installs, its pages, its switches, and that whatever goes wrong
// leaves the old version whole.
#include <gmock/gmock.h>

#include <fstream>

#include "e2e/driver/Keyboard.h"
#include "e2e/driver/PackTest.h"
#include "e2e/driver/Setup.h"

namespace E2e {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::UnorderedElementsAre;

// In an order and in letters of no program that is known.
constexpr const char* Silent = "/nocancel /SUPPRESSMSGBOXES /Silent /sp-";
constexpr const char* SilentAndImpatient = "/SP- /SILENT /SUPPRESSMSGBOXES /NOCANCEL /WAIT=1";

class Installer : public PackTest {
 protected:
  // What a run that was interrupted has left.
  Installer() { UninstallQuietly(); }

  void TearDown() override {
    PackTest::TearDown();
    pack_.reset();
    UninstallQuietly();
  }

  // Installs without a word; returns the exit code.
  static DWORD Install(const std::string& installer, const std::string& arguments) {
    return RunningProgram(installer, arguments).WaitForEnd();
  }

  // A program folder that no installer has made, with files of the user's.
  void PutFolder() {
    PutProgramFolder("SK2 Pack");
    PutUsersFiles(programFolder());
    // Unlike in the new version, so that it is seen which one is there.
    WriteFile(programFolder() + "\\LICENSE.txt", "the old one");
  }
  // The installer as the pack fetches it. A pack that starts takes it away.
  void PutUpdater(const std::string& installer) { WriteFile(updater(), ReadFile(installer)); }
  void PutFolderWithUpdater(const std::string& installer) {
    PutFolder();
    PutUpdater(installer);
  }
  std::string updater() const { return programFolder() + "\\orvsk2packupdater.exe"; }
  std::string program() const { return programFolder() + "\\sk2pack.exe"; }
  std::string log() const { return programFolder() + "\\sk2up.log"; }

  static void PutUsersFiles(const std::string& folder) {
    WriteFile(folder + "\\sk2pack.lng", "XFile=&Mine\r\n");
    WriteFile(folder + "\\sk2pack.cfg", "!\r\n");
    WriteFile(folder + "\\iplist.dat", "Here=203.0.113.7\r\n");
  }
  static void RemoveUsersFiles(const std::string& folder) {
    for (const char* name : {"sk2pack.lng", "sk2pack.cfg", "iplist.dat"}) {
      DeleteFileA((folder + "\\" + name).c_str());
    }
  }
  static void ExpectUsersFiles(const std::string& folder) {
    // The pack adds the texts that are missing when it runs.
    EXPECT_THAT(ReadFile(folder + "\\sk2pack.lng"), testing::StartsWith("XFile=&Mine\r\n"));
    EXPECT_EQ(ReadFile(folder + "\\sk2pack.cfg"), "!\r\n");
    EXPECT_EQ(ReadFile(folder + "\\iplist.dat"), "Here=203.0.113.7\r\n");
  }

  // The folder's files, but not those that change by themselves: the log, and what a pack that was
  // started adds to its texts.
  static std::map<std::string, FileBytes> FilesOfThePack(const std::string& folder) {
    auto files = FilesIn(folder);
    for (const char* name : {"sk2up.log", "sk2pack.lng", "orvsk2packupdater.exe"})
      files.erase(name);
    return files;
  }

  // The log, which is written in the system's own characters.
  std::string Log() const {
    const std::string bytes = ReadFile(log());
    std::string text;
    for (size_t i = 2; i + 1 < bytes.size(); i += 2) text += bytes[i];
    return text;
  }

  // Waits for the pack that the installer starts; it ends with the test.
  Pack& StartedPack(const std::string& path) {
    pack_ = std::make_unique<Pack>(RunningProgram::StartedByOthers{path});
    return *pack_;
  }

 private:
  std::unique_ptr<Pack> pack_;
};

// --- Installing and uninstalling without a word ---

TEST_F(Installer, InstallsForTheUserWithAnEntryInTheListOfPrograms) {
  ASSERT_EQ(Install(Given().installer, "/S"), 0U);
  const std::string folder = InstalledEntry::Text("InstallLocation");
  EXPECT_THAT(folder, HasSubstr("\\AppData\\Local\\Programs\\SK2Pack"));
  RemoveUsersFiles(folder);
  auto files = FilesIn(folder);
  EXPECT_EQ(files.erase("uninstall.exe"), 1U);
  EXPECT_EQ(files, FilesIn(Given().pack));

  EXPECT_EQ(InstalledEntry::Text("DisplayName"), "Skidrun2 Utility Pack");
  EXPECT_EQ(InstalledEntry::Text("DisplayVersion"), ShortVersionOf(Given().installer));
  EXPECT_EQ(InstalledEntry::Text("Publisher"), "Orvane Interactive");
  EXPECT_EQ(InstalledEntry::Text("DisplayIcon"), folder + "\\sk2pack.exe");
  EXPECT_EQ(InstalledEntry::Text("UninstallString"), "\"" + folder + "\\uninstall.exe\"");
  EXPECT_EQ(InstalledEntry::Text("QuietUninstallString"), "\"" + folder + "\\uninstall.exe\" /S");
  size_t bytes = 0;
  for (const auto& [name, contents] : files) bytes += contents.size;
  EXPECT_NEAR(InstalledEntry::Number("EstimatedSize"), bytes / 1024.0, files.size());
  EXPECT_TRUE(Exists(StartMenuEntry()));
  EXPECT_FALSE(IsRunning(folder + "\\sk2pack.exe"));

  // The user's files are all that uninstalling leaves.
  PutUsersFiles(folder);
  UninstallQuietly();
  EXPECT_THAT(NamesIn(folder), ElementsAre("iplist.dat", "sk2pack.cfg", "sk2pack.lng"));
  ExpectUsersFiles(folder);
  EXPECT_FALSE(Exists(StartMenuEntry()));

  // Nor does a new installation touch them, whatever language it is asked for.
  ASSERT_EQ(Install(NextInstaller(), "/lang=Deutsch /S"), 0U);
  ExpectUsersFiles(folder);
  RemoveUsersFiles(folder);
  UninstallQuietly();
  WaitUntil("the folder gone", [&] { return !Exists(folder); });
}

TEST_F(Installer, TakesTheFolderThatItIsGivenAndInstallsThereAgain) {
  const std::string folder = scratch.path() + "\\My Pack";
  ASSERT_EQ(Install(Given().installer, "/s /d=" + folder), 0U);
  EXPECT_EQ(InstalledEntry::Text("InstallLocation"), folder);
  ASSERT_EQ(Install(NextInstaller(), "/LANG=Deutsch /S"), 0U);
  EXPECT_EQ(InstalledEntry::Text("InstallLocation"), folder);
  EXPECT_EQ(ShortVersionOf(folder + "\\sk2pack.exe"), ShortVersionOf(NextInstaller()));
  EXPECT_EQ(ReadFile(folder + "\\sk2pack.lng"), ReadFile(folder + "\\languages\\Deutsch.lng"));
}

TEST_F(Installer, IsNotUninstalledWhileThePackRuns) {
  const std::string folder = scratch.path() + "\\Pack";
  ASSERT_EQ(Install(Given().installer, "/S /D=" + folder), 0U);
  const auto before = FilesIn(folder);
  {
    const Pack pack(folder + "\\sk2pack.exe");
    // Told where it is, it does not work as a copy, and can be waited for.
    EXPECT_EQ(RunningProgram(folder + "\\uninstall.exe", "/S _?=" + folder).WaitForEnd(), 7U);
  }
  auto after = FilesIn(folder);
  after.erase("sk2pack.lng");
  EXPECT_EQ(after, before);
  EXPECT_TRUE(InstalledEntry::Exists());
  DeleteFileA((folder + "\\sk2pack.lng").c_str());
}

// --- The pages ---

TEST_F(Installer, IsWorkedByTheKeyboardAlone) {
  // Nothing of another run's user in the folder that it proposes.
  ASSERT_EQ(Install(NextInstaller(), "/S"), 0U);
  RemoveUsersFiles(InstalledEntry::Text("InstallLocation"));
  UninstallQuietly();
  const std::string version = ShortVersionOf(NextInstaller());
  const std::string title = "Skidrun2 Utility Pack " + version + " Setup";
  const RunningProgram setup(NextInstaller());
  AllowSetForegroundWindow(setup.processId());

  Window page = WaitForTitle(title + ": Installation Folder");
  EXPECT_EQ(FocusedName(page), "Destination Folder");
  Keyboard::Press("Enter");

  page = WaitForTitle(title + ": Language of the Texts");
  EXPECT_EQ(FocusedName(page), "Language of the pack's texts:");
  EXPECT_THAT(page.focus()->rows(), ElementsAre("English", "Deutsch"));
  EXPECT_EQ(page.focus()->selectedRow(), "English");
  // Back and forth, as a user does who wants to hear the folder again.
  Keyboard::Press("Alt+B");
  WaitForTitle(title + ": Installation Folder");
  Keyboard::Press("Alt+N");
  page = WaitForTitle(title + ": Language of the Texts");
  Keyboard::Press("D");
  WaitUntil("Deutsch selected", [&] { return page.focus()->selectedRow() == "Deutsch"; });
  Keyboard::Press("Enter");

  page = WaitForTitle(title + ": Finished");
  EXPECT_EQ(FocusedName(page), "Open the pack now");
  EXPECT_EQ(page.focus()->Ask(BM_GETCHECK), BST_CHECKED);
  Keyboard::Press("Enter");
  EXPECT_EQ(setup.WaitForEnd(), 0U);

  const std::string folder = InstalledEntry::Text("InstallLocation");
  {
    Pack& pack = StartedPack(folder + "\\sk2pack.exe");
    const std::vector<MenuLine> menu = ReadMenu(pack.WaitForMain());
    EXPECT_EQ(menu.at(0).caption, "&Datei");
    // While it is open, uninstalling asks for it to be closed, and goes on then.
    const RunningProgram uninstaller(folder + "\\uninstall.exe");
    AllowSetForegroundWindow(ASFW_ANY);
    page = WaitForTitle("Skidrun2 Utility Pack Uninstall: Confirmation");
    Keyboard::Press("Enter");
    WaitForTitle("Skidrun2 Utility Pack Uninstall");
    TerminateProcess(pack.program().process(), 0);
    pack.program().WaitForEnd();
    Keyboard::Press("Enter");
  }
  const Window box = WaitFor<Window>("what stays", []() -> std::optional<Window> {
    const Window front(GetForegroundWindow());
    if (!IsBox(front) || ReadBox(front).text.find("sk2pack.lng") == std::string::npos) {
      return std::nullopt;
    }
    return front;
  });
  EXPECT_EQ(ReadBox(box).text, "The pack has been removed. Your own files are still in " + folder +
                                   ":\r\n\r\nsk2pack.lng");
  SavePictureOf(box.rectangle(), "what stays");
  Keyboard::Press("Enter");
  WaitUntil("the uninstaller gone", [&] { return !box.Exists() && !InstalledEntry::Exists(); });
  EXPECT_THAT(NamesIn(folder), ElementsAre("sk2pack.lng"));
  DeleteFileA((folder + "\\sk2pack.lng").c_str());
}

TEST_F(Installer, CanBeCancelledOnItsFirstPage) {
  const std::string title =
      "Skidrun2 Utility Pack " + ShortVersionOf(Given().installer) + " Setup: Installation Folder";
  const RunningProgram setup(Given().installer);
  AllowSetForegroundWindow(setup.processId());
  WaitForTitle(title);
  Keyboard::Press("Escape");
  EXPECT_EQ(setup.WaitForEnd(), 2U);
  EXPECT_FALSE(InstalledEntry::Exists());
}

TEST_F(Installer, AsksForAnOpenPackToBeClosedBeforeItInstalls) {
  PutFolder();
  const Pack pack(program());
  const std::string version = ShortVersionOf(NextInstaller());
  const RunningProgram setup(NextInstaller(), "/D=" + programFolder());
  AllowSetForegroundWindow(setup.processId());
  const std::string title = "Skidrun2 Utility Pack " + version + " Setup";
  WaitForTitle(title + ": Installation Folder");
  Keyboard::Press("Enter");
  const Window box = WaitForTitle(title);
  EXPECT_EQ(ReadBox(box).text, "The pack is open. Close it, and choose Retry.");
  Keyboard::Press("Escape");
  WaitForTitle(title + ": Installation Folder");
  Keyboard::Press("Escape");
  EXPECT_EQ(setup.WaitForEnd(), 2U);
  EXPECT_EQ(ReadFile(programFolder() + "\\LICENSE.txt"), "the old one");
}

// --- As the pack starts it ---

TEST_F(Installer, ShowsThatItWaitsForThePackAndThenUpdatesAndOpensIt) {
  PutFolder();
  auto old = std::make_unique<Pack>(program());
  PutUpdater(NextInstaller());
  const RunningProgram setup(updater(), Silent, RunningProgram::Shown::Minimised);
  AllowSetForegroundWindow(setup.processId());
  const Window page = WaitForTitle("Skidrun2 Utility Pack " + ShortVersionOf(NextInstaller()) +
                                   " Setup: Installing");
  EXPECT_FALSE(IsIconic(page.handle()));
  EXPECT_FALSE(Window(GetDlgItem(page.handle(), IDCANCEL)).IsEnabled());
  // Nor does it end when it is told to close.
  Keyboard::Press("Alt+F4");
  Keyboard::Press("Escape");
  page.WaitUntilDrawn();
  EXPECT_TRUE(setup.IsRunning());
  old.reset();
  EXPECT_EQ(setup.WaitForEnd(), 0U);
  Pack& pack = StartedPack(program());
  EXPECT_EQ(pack.WaitForMain().text(), "Skidrun2 Utility Pack V1.0.1");
  EXPECT_NE(ReadFile(programFolder() + "\\LICENSE.txt"), "the old one");
  ExpectUsersFiles(programFolder());
  WaitUntil("the updater gone", [&] { return !Exists(updater()); });
  // The folder was no installed one, and is none now.
  EXPECT_FALSE(InstalledEntry::Exists());
  EXPECT_FALSE(Exists(StartMenuEntry()));
  EXPECT_THAT(NamesIn(programFolder()),
              UnorderedElementsAre("LICENSE.txt", "iplist.dat", "languages", "licences", "orec.dll",
                                   "sk2pack.cfg", "sk2pack.chm", "sk2pack.exe", "sk2pack.lng"));
}

TEST_F(Installer, UpdatesAPackThatHasAnotherName) {
  PutFolderWithUpdater(NextInstaller());
  const std::string mine = programFolder() + "\\My pack.exe";
  ASSERT_TRUE(MoveFileA(program().c_str(), mine.c_str()));
  const std::string own = programFolder() + "\\orvMy packupdater.exe";
  ASSERT_TRUE(MoveFileA(updater().c_str(), own.c_str()));
  EXPECT_EQ(Install(own, "/S"), 0U);
  EXPECT_EQ(ShortVersionOf(mine), ShortVersionOf(NextInstaller()));
  EXPECT_FALSE(Exists(program()));
}

// --- What goes wrong ---

TEST_F(Installer, LeavesAPackThatDoesNotEnd) {
  PutFolder();
  const auto before = FilesOfThePack(programFolder());
  Pack pack(program());
  PutUpdater(NextInstaller());
  EXPECT_EQ(Install(updater(), SilentAndImpatient), 7U);
  EXPECT_EQ(FilesOfThePack(programFolder()), before);
  EXPECT_THAT(Log(), HasSubstr("The pack has not ended. Close it and try again."));
  pack.WaitForMain();
}

// The mutex of a pack in another folder is waited for too, but stops nothing.
TEST_F(Installer, InstallsThoughAPackInAnotherFolderIsOpen) {
  PutFolderWithUpdater(NextInstaller());
  const std::string other = scratch.path() + "\\Other";
  CopyFolder(Given().pack, other);
  const Pack pack(other + "\\sk2pack.exe");
  EXPECT_EQ(Install(updater(), "/WAIT=1 /S"), 0U);
  EXPECT_EQ(ShortVersionOf(program()), ShortVersionOf(NextInstaller()));
}

// A file that another program holds, such as the help while it is read.
TEST_F(Installer, TakesBackAllIfAFileCannotBeReplaced) {
  PutFolderWithUpdater(NextInstaller());
  const auto before = FilesOfThePack(programFolder());
  const HANDLE held = CreateFileA((programFolder() + "\\sk2pack.chm").c_str(), GENERIC_READ,
                                  FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
  ASSERT_NE(held, INVALID_HANDLE_VALUE);
  EXPECT_EQ(Install(updater(), SilentAndImpatient), 4U);
  CloseHandle(held);
  EXPECT_EQ(FilesOfThePack(programFolder()), before);
  EXPECT_THAT(Log(), HasSubstr("sk2pack.chm cannot be replaced (system error "));
  EXPECT_THAT(Log(), HasSubstr("The old version is whole again"));
  EXPECT_THAT(Log(), testing::StartsWith("Installing Skidrun2 Utility Pack 1.0.1 in "));
  EXPECT_EQ(StartedPack(program()).WaitForMain().text(), "Skidrun2 Utility Pack V1.0");
  ExpectUsersFiles(programFolder());
}

TEST_F(Installer, ChangesNothingIfAFileCannotBeRead) {
  PutFolderWithUpdater(NextInstaller());
  const auto before = FilesOfThePack(programFolder());
  const HANDLE held = CreateFileA((programFolder() + "\\orec.dll").c_str(), GENERIC_READ, 0,
                                  nullptr, OPEN_EXISTING, 0, nullptr);
  ASSERT_NE(held, INVALID_HANDLE_VALUE);
  EXPECT_EQ(Install(updater(), "/S /WAIT=1"), 3U);
  CloseHandle(held);
  EXPECT_EQ(FilesOfThePack(programFolder()), before);
  EXPECT_THAT(Log(), HasSubstr("orec.dll cannot be read (system error "));
  EXPECT_FALSE(IsRunning(program())) << "nobody wanted to see it";
}

TEST_F(Installer, TakesBackWhatIsNotTheVersionThatItShouldBe) {
  PutFolderWithUpdater(FalseInstaller());
  const auto before = FilesOfThePack(programFolder());
  EXPECT_EQ(Install(updater(), SilentAndImpatient), 4U);
  EXPECT_EQ(FilesOfThePack(programFolder()), before);
  EXPECT_THAT(Log(), HasSubstr("What was installed is not version 1.0.2 but '1.0.1'."));
  StartedPack(program()).WaitForMain();
}

TEST_F(Installer, TellsInABoxWhatWentWrongUnlessBoxesAreSuppressed) {
  PutFolderWithUpdater(FalseInstaller());
  const RunningProgram setup(updater(), "/SILENT");
  AllowSetForegroundWindow(setup.processId());
  const Window box = WaitFor<Window>("the box", []() -> std::optional<Window> {
    const Window front(GetForegroundWindow());
    return IsBox(front) ? std::optional(front) : std::nullopt;
  });
  EXPECT_EQ(ReadBox(box).text, "What was installed is not version 1.0.2 but '1.0.1'.");
  Keyboard::Press("Enter");
  EXPECT_EQ(setup.WaitForEnd(), 4U);
  StartedPack(program()).WaitForMain();
}

// An installation that ended half way, as at a power cut: half of the files are new.
TEST_F(Installer, MakesGoodWhatAnInterruptedOneHasLeft) {
  PutFolderWithUpdater(FalseInstaller());
  const auto before = FilesOfThePack(programFolder());
  const std::string kept = programFolder() + "\\sk2up.old";
  const std::string staged = programFolder() + "\\sk2up.new";
  CopyFolder(Given().pack, kept);
  WriteFile(kept + "\\LICENSE.txt", "the old one");
  CopyFolder(Given().pack, staged);
  DeleteFileA((staged + "\\LICENSE.txt").c_str());
  WriteFile(programFolder() + "\\LICENSE.txt", "the new one");
  EXPECT_EQ(Install(updater(), "/S"), 4U);
  EXPECT_EQ(FilesOfThePack(programFolder()), before);
}

TEST_F(Installer, RunsOnceAtATime) {
  PutFolderWithUpdater(NextInstaller());
  const HANDLE other = CreateMutexA(nullptr, FALSE, "ORVSK2PackSetup");
  EXPECT_EQ(Install(updater(), SilentAndImpatient), 1U);
  CloseHandle(other);
  EXPECT_EQ(ReadFile(programFolder() + "\\LICENSE.txt"), "the old one");
}

// --- A user whose name the code page does not have ---

// The user's folder for programs, as long as this lives, another one.
class OtherUser {
 public:
  explicit OtherUser(const std::wstring& folder) {
    RegOpenKeyExW(HKEY_CURRENT_USER,
                  L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\User Shell Folders", 0,
                  KEY_READ | KEY_WRITE, &key_);
    DWORD size = sizeof before_ - sizeof *before_;
    wasThere_ = RegQueryValueExW(key_, Name, nullptr, nullptr, reinterpret_cast<BYTE*>(before_),
                                 &size) == ERROR_SUCCESS;
    RegSetValueExW(key_, Name, 0, REG_EXPAND_SZ, reinterpret_cast<const BYTE*>(folder.c_str()),
                   static_cast<DWORD>((folder.size() + 1) * sizeof(wchar_t)));
  }
  ~OtherUser() {
    if (wasThere_) {
      RegSetValueExW(key_, Name, 0, REG_EXPAND_SZ, reinterpret_cast<const BYTE*>(before_),
                     static_cast<DWORD>((wcslen(before_) + 1) * sizeof(wchar_t)));
    } else {
      RegDeleteValueW(key_, Name);
    }
    RegCloseKey(key_);
  }
  OtherUser(const OtherUser&) = delete;
  OtherUser& operator=(const OtherUser&) = delete;

 private:
  static constexpr const wchar_t* Name = L"Local AppData";
  HKEY key_ = nullptr;
  bool wasThere_ = false;
  wchar_t before_[MAX_PATH]{};
};

TEST_F(Installer, FindsAFolderWithANameThatThePackCanUse) {
  const std::wstring scratchPath(scratch.path().begin(), scratch.path().end());
  const OtherUser user(scratchPath + L"\\\u5C71\u9053");
  ASSERT_EQ(Install(Given().installer, "/S"), 0U);
  const std::string folder = InstalledEntry::Text("InstallLocation");
  EXPECT_THAT(folder, Not(HasSubstr("?")));
  ASSERT_TRUE(Exists(folder + "\\sk2pack.exe")) << folder;
  {
    Pack pack(folder + "\\sk2pack.exe");
    pack.WaitForMain();
    EXPECT_TRUE(Exists(folder + "\\sk2pack.lng"));
  }
  DeleteFileA((folder + "\\sk2pack.lng").c_str());
  UninstallQuietly();
}

TEST_F(Installer, RefusesAFolderThatThePackCannotUse) {
  const std::wstring folder =
      std::wstring(scratch.path().begin(), scratch.path().end()) + L"\\\u5C71\u9053";
  STARTUPINFOW start{};
  start.cb = sizeof start;
  PROCESS_INFORMATION process{};
  const std::string installer = Given().installer;
  std::wstring line =
      L"\"" + std::wstring(installer.begin(), installer.end()) + L"\" /S /D=" + folder;
  ASSERT_TRUE(CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                             &start, &process));
  WaitUntil("its end", [&] { return WaitForSingleObject(process.hProcess, 0) == WAIT_OBJECT_0; });
  DWORD code = 0;
  GetExitCodeProcess(process.hProcess, &code);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  EXPECT_EQ(code, 3U);
  EXPECT_FALSE(InstalledEntry::Exists());
}

}  // namespace
}  // namespace E2e
