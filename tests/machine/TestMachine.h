// What the contract tests need from the machine on which they run, beside the platform's own
// services. It reaches round those services: what it prepares and tells comes from the machine
// itself, as another program would see it.
//
// Implemented by SimulatedMachine.cpp and by the files RealMachine*.cpp. Every function may be
// called in a test only.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/Wave.h"
#include "platform/Executable.h"
#include "platform/Recorder.h"
#include "platform/Registry.h"

namespace TestMachine {

// Before and after each test. SetUp begins a new run of the program. TearDown ends it (its PerRun
// objects go), and puts back all that the test changed: files, holds, separators, registry values,
// the web and the clipboard's holder.
void SetUp();
void TearDown();

// --- Files ---

// An empty folder of the running test, without a backslash at its end. Its path is shorter than 100
// characters.
std::string ScratchFolder();

void PutFile(const std::string& path, const std::string& bytes);
void PutFolder(const std::string& path);
// The bytes of a file; nothing if there is none.
std::optional<std::string> BytesOf(const std::string& path);
// The names in a folder, hidden ones too, in the machine's own spelling, sorted by their bytes.
std::vector<std::string> NamesIn(const std::string& folder);

enum Attribute { ReadOnly = 1, Hidden = 2, System = 4 };
// Sets exactly these attributes of a file or folder (the sum of Attribute), or tells them.
void SetAttributes(const std::string& path, int attributes);
int AttributesOf(const std::string& path);

// Another program has a file open, until the test ends or lets go of it.
enum class Sharing {
  ForReading,            // others may read it, but not write, replace or delete it
  ForWriting,            // it is being written, and others may do no more than read it
  WithNobody,            // others cannot even read it
  ForReadingAndWriting,  // others may read and write it, but not replace or delete it
};
void Hold(const std::string& path, Sharing sharing);
void LetGo(const std::string& path);

// While it lives, the system keeps temporary files in a folder of the test's own, beside
// ScratchFolder.
class OwnTemporaryFolder {
 public:
  OwnTemporaryFolder();
  ~OwnTemporaryFolder();
  OwnTemporaryFolder(const OwnTemporaryFolder&) = delete;
  OwnTemporaryFolder& operator=(const OwnTemporaryFolder&) = delete;

 private:
  std::string before_;
};

// Takes from the user the right to make and delete files in a folder; they may still write those
// that are there. False if this machine cannot do so: the test is then skipped.
bool RefuseNewFiles(const std::string& folder);

// --- Signatures ---

// What this machine needs to judge signatures and has not got, as a sentence; empty if nothing.
std::string LackOfSignatures();

// --- Numbers ---

// Sets the user's separators for the program's process: those of numbers and of amounts of money
// alike, as the system's own number parser minds both.
void SetSeparators(const std::string& decimal, const std::string& thousands);

// --- Registry ---

// A subkey that tests may fill, in both roots and views.
std::string ScratchSubkey();
// Stores a value as it is: type and bytes. Type Other is stored as binary data.
void PutRegistryValue(Platform::RegistryRoot root, Platform::RegistryView view,
                      const std::string& subkey, const std::string& name,
                      const Platform::RegistryValue& value);

// --- Executable, mutexes ---

// What the test program's own file says of itself, asked round the platform's service.
std::string FolderOfExecutable();
std::string NameOfExecutable();
Platform::ProgramVersion VersionOfExecutable();

// True if a mutex of that name exists in the system.
bool HasMutex(const std::string& name);

// The one sound resource that the test program's own file has, in the letter case in which it is
// declared.
std::string NameOfResource();
std::string BytesOfResource();

// --- Sound ---

// True if there is a device that can play sounds. Without it, no other of these may be called.
bool HasSoundDevice();

// What the device is given to play.
struct SoundPlaying {
  std::string samples;
  int channels = 0;
  int bits = 0;
  int rate = 0;  // at which it is played, in frames a second
  bool isLooping = false;
  bool operator==(const SoundPlaying&) const = default;
};
// All that is being played now, in the order in which it was put into the device's memory.
std::vector<SoundPlaying> SoundsPlaying();

// Returns when all that is played once has come to its end.
void LetSoundsEnd();

// The device goes away: what it plays falls silent, all that is asked of it fails with codes that
// differ from one time to the next, and no device can be opened. Another one comes. Both until the
// test ends.
void UnplugSoundDevice();
void PlugInSoundDevice();
// The device takes back the memory of all its sounds; what it held is gone.
void LoseSounds();
// The device that is there refuses all calls of a kind with the code 0x8878000A, and so does each
// one that is opened, until the test ends.
enum class SoundCall { Make, Play, SetFrequency };
void LetSoundDeviceRefuse(SoundCall call);

// --- Recording ---

// The machine has these recording devices and no others, the first being the default one, until the
// test ends. Before, none of the following may be called.
void SetMicrophones(const std::vector<std::string>& names);
// No device can be opened any more, for that reason.
void RefuseMicrophones(Platform::RecordingFailure why);
// What the recording that is going on hears from its beginning on; once in a recording. The wave
// has its format.
void Speak(const Wave& wave);
// The devices go away, and nobody is told. What a recording calls them for may never return.
void UnplugMicrophones();

// --- Documents ---

// The extension, with its dot, of documents for which there is a program on this machine.
std::string DocumentExtension();
// Waits until that program has been started with a document, and returns what it was given: its
// arguments with "|" between them.
std::string OpenedDocument();

// --- The web ---

// A server of the machine's own answers at that address with a page, until the test ends. The
// machine's system has never asked for it before.
void Serve(const std::string& url, const std::string& page);
// No address is answered any more, until the test ends.
void GoOffline();
// How many times an address was asked for.
int RequestsFor(const std::string& url);
// In the middle of the next download, before anything has come, the user presses a key, or asks by
// the close box that the window be closed; all that is named here, in this order.
void PressDuringDownload(const std::string& key);
void CloseDuringDownload();

// --- The clipboard ---

// The text on it, as a program reads it that knows all characters: in UTF-8. Whoever held it lets
// go of it.
std::string ClipboardText();
// Another program leaves a text there, in ASCII.
void PutClipboardText(const std::string& text);
// Another program has it open, until somebody has tried twice in vain to open it; or until the test
// ends.
void HoldClipboardForAMoment();
void HoldClipboard();

// --- Programs that are started ---

// Makes a program there that notes how it is started, and ends.
void PutProgram(const std::string& path);

struct ProgramStart {
  std::string arguments;  // what stands behind the program in its command line
  bool isMinimised = false;
};
// Waits until it has been started.
ProgramStart StartOf(const std::string& path);

// --- Windows, by keyboard and ear ---

// Each of these acts on the native window that has the keyboard, and returns when the program has
// handled what comes of it. Keys go the way of a real key: through the message loop, so that the
// window's KeyDown, its dialog keys and the focused control get them in their turn.

// Presses a key by its name: "Enter", "Tab", "Shift+Tab", "Escape", "Space", "Up", "Home",
// "Delete", "Ctrl+A", "Ctrl+Shift+N", "Alt+S", "Alt+F4".
void Press(const std::string& key);
// Presses a key such as "Alt+C" and holds it down, Alt too. LetGoOfKeys lets go of Alt first, then
// of the key; Press does it the other way round.
void HoldDown(const std::string& key);
void LetGoOfKeys();
// The keyboard repeats the key that is held down, as it does by itself after a while.
void RepeatKey();
// Presses a key while the program is busy: it gets the key only when it looks for one.
void PressWhileBusy(const std::string& key);
// Types the characters of a text.
void Type(const std::string& text);
// The close box of the window.
void CloseWindow();
// The taskbar, or another program, asks the window of that title to close; it need not be in use.
void CloseFromTaskbar(const std::string& title);
// Clicks, or clicks twice, on the row with that text in the window's only list.
void ClickRow(const std::string& row);
void DoubleClickRow(const std::string& row);
// Another program, such as a screen reader, selects a row of that list, or none with -1, and the
// program is not told.
void SelectRowUnnoticed(int row);
// From now on that list has no memory for rows with that text, until its window goes.
void RefuseRow(const std::string& row);
// Clicks the button with that caption, without "&".
void ClickButton(const std::string& caption);

// What a screen reader says of the focused native control, in the words of Simulated::User::Hears.
// Asked of the native windows alone: the name is the control's own text or that of the static text
// just before it, "read only" its style, rows and selection what the native list holds.
std::string Hears();
// The selected part of the focused native text box.
std::string SelectedText();
// The titles of the program's native windows that are on the screen, boxes included, sorted.
std::vector<std::string> VisibleWindows();
// The title of the native window that has the keyboard.
std::string ActiveWindow();
// The captions of the active window's native menu bar, and behind each in parentheses what its menu
// holds, submenus likewise: "&File(&Close (Alt+F4)) &Help(&Visit(&One,&Two),greyed:About)".
// A greyed item has "greyed:" before it, a checked one "checked:".
std::string Menus();
// Chooses a menu item by the captions on the way to it, "&" included.
void ChooseMenu(const std::vector<std::string>& captions);

// --- Time ---

// Lets the program handle what comes until the condition holds, or until much time has gone by.
void WaitUntil(const std::function<bool()>& condition);
// Lets the program handle what comes for so long: to see that nothing comes.
void LetTimeGoBy(int milliseconds);

// --- Room for windows ---

// What the system may have no room for.
enum class Scarce { Windows, Menus, Timers };
// The system refuses one call that makes such a thing, with the code 1158, until the test ends or
// this is asked for again.
//   calls  how many go well before. How many a window takes differs from machine to machine.
void Refuse(Scarce thing, int calls = 0);
// True if it has come to that.
bool HasRefused();

// --- Boxes and dialogs ---

// What the user does when the next modal window comes: a message box, a window shown by ShowModal,
// or a file dialog. The action runs while it is on the screen and has the keyboard, and must make
// it go. Several are used in their order.
void WhenModalWindowOpens(std::function<void()> action);

// A message box, while it is on the screen. Asked of the native box.
struct MessageBoxSeen {
  std::string title;
  std::string text;
};
MessageBoxSeen MessageBoxOnScreen();

// In an open file dialog: types a path in place of the name that stands there and presses Enter; or
// leaves it by Escape.
//   replaces  what is answered to the dialog's own question whether to replace a file. It must come
//             if there is an answer, and must not come otherwise.
void ChooseInFileDialog(const std::string& path, std::optional<bool> replaces = std::nullopt);
void LeaveFileDialog();
// In an open file dialog: types a path in a folder that is not there and presses Enter. The dialog
// says so in a box of its own, which is answered with OK, and stays.
void ChooseInMissingFolder(const std::string& path);

}  // namespace TestMachine

// The ground of all contract tests: each runs on a machine of its own.
class ContractTest : public testing::Test {
 protected:
  ContractTest() { TestMachine::SetUp(); }
  ~ContractTest() override { TestMachine::TearDown(); }
};
