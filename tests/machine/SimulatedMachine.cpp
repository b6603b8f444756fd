// The simulated machine, as the contract tests ask for it.
#include <algorithm>
#include <utility>

#include "base/Utf8.h"
#include "machine/simulated/Machine.h"
#include "machine/simulated/OpenBox.h"
#include "machine/simulated/Window.h"
#include "platform/Resources.h"
#include "tests/machine/TestMachine.h"
#include "ui/Forms.h"

namespace TestMachine {

namespace {

std::unique_ptr<Simulated::Machine> machine;
// What the user does during the next download.
std::vector<std::function<void()>> duringDownload;

std::vector<std::string> Sorted(std::vector<std::string> texts) {
  std::sort(texts.begin(), texts.end());
  return texts;
}

std::string Described(const Simulated::NativeMenu& items, const char* separator) {
  std::string all;
  for (const Simulated::NativeMenuItem& item : items) {
    if (!all.empty()) all += separator;
    if (item.isChecked) all += "checked:";
    if (!item.isEnabled) all += "greyed:";
    all += item.caption;
    if (!item.items.empty()) all += "(" + Described(item.items, ",") + ")";
  }
  return all;
}

void DuringDownload(std::function<void()> action) {
  if (duringDownload.empty()) {
    machine->user.DuringLongStep([] {
      for (const auto& each : std::exchange(duringDownload, {})) each();
    });
  }
  duringDownload.push_back(std::move(action));
}

}  // namespace

void SetUp() {
  machine = std::make_unique<Simulated::Machine>();
  machine->executable.resources = {{Platform::SoundResource, NameOfResource(), BytesOfResource()}};
}

void TearDown() {
  duringDownload.clear();
  machine.reset();
}

std::string ScratchFolder() {
  machine->files.PutFolder("C:\\Scratch");
  return "C:\\Scratch";
}

void PutFile(const std::string& path, const std::string& bytes) {
  machine->files.Put(path, bytes);
}

void PutFolder(const std::string& path) {
  machine->files.PutFolder(path);
}

std::optional<std::string> BytesOf(const std::string& path) {
  const Simulated::DiskEntry* file = machine->files.Find(path);
  if (!file) return std::nullopt;
  return Simulated::BytesOf(*file);
}

std::vector<std::string> NamesIn(const std::string& folder) {
  return Sorted(machine->files.Names(folder));
}

void SetAttributes(const std::string& path, int attributes) {
  machine->files.SetAttributes(path, attributes);
}

int AttributesOf(const std::string& path) {
  return machine->files.Attributes(path);
}

std::string LackOfSignatures() {
  return "";
}

void Hold(const std::string& path, Sharing sharing) {
  switch (sharing) {
    case Sharing::ForReading:
    case Sharing::ForWriting: return machine->files.Hold(path);
    case Sharing::WithNobody: return machine->files.HoldAlone(path);
    case Sharing::ForReadingAndWriting: return machine->files.HoldShared(path);
  }
}

void LetGo(const std::string& path) {
  machine->files.Release(path);
}

// Each machine has a new one anyway.
OwnTemporaryFolder::OwnTemporaryFolder() = default;
OwnTemporaryFolder::~OwnTemporaryFolder() = default;

bool RefuseNewFiles(const std::string& folder) {
  machine->files.RefuseNewFiles(folder);
  return true;
}

void SetSeparators(const std::string& decimal, const std::string& thousands) {
  machine->locale.SetSeparators(decimal, thousands);
}

std::string ScratchSubkey() {
  return "SOFTWARE\\SK2PackContractTest";
}

void PutRegistryValue(Platform::RegistryRoot root, Platform::RegistryView view,
                      const std::string& subkey, const std::string& name,
                      const Platform::RegistryValue& value) {
  machine->registry.Put(root, view, subkey, name, value);
}

std::string FolderOfExecutable() {
  return machine->executable.folder;
}

std::string NameOfExecutable() {
  return machine->executable.name;
}

Platform::ProgramVersion VersionOfExecutable() {
  return machine->executable.version;
}

bool HasMutex(const std::string& name) {
  return machine->mutexes.Exists(name);
}

std::string NameOfResource() {
  return "ContractSound";
}

std::string BytesOfResource() {
  return {"RIFF\0\xFFsound\r\n", 13};
}

bool HasSoundDevice() {
  return machine->sound.IsPluggedIn();
}

std::vector<SoundPlaying> SoundsPlaying() {
  std::vector<SoundPlaying> sounds;
  for (const auto& sound : machine->sound.Playing()) {
    sounds.push_back({sound.samples, sound.channels, sound.bits, sound.rate, sound.isLooping});
  }
  return sounds;
}

void LetSoundsEnd() {
  machine->sound.EndSounds();
}

void UnplugSoundDevice() {
  machine->sound.Unplug();
}

void PlugInSoundDevice() {
  machine->sound.PlugIn();
}

void LoseSounds() {
  machine->sound.LoseSounds();
}

void SetMicrophones(const std::vector<std::string>& names) {
  machine->microphone.devices = names;
}

void RefuseMicrophones(Platform::RecordingFailure why) {
  machine->microphone.Refuse(why);
}

void Speak(const Wave& wave) {
  machine->microphone.voice = wave;
  machine->clock.Pass(wave.Seconds());
}

void UnplugMicrophones() {
  machine->microphone.Unplug();
}

void LetSoundDeviceRefuse(SoundCall call) {
  switch (call) {
    case SoundCall::Make: return machine->sound.Refuse("SoundOnDevice");
    case SoundCall::Play: return machine->sound.Refuse("SoundOnDevice::Play");
    case SoundCall::SetFrequency: return machine->sound.Refuse("SoundOnDevice::SetFrequency");
  }
}

std::string DocumentExtension() {
  return ".chm";
}

std::string OpenedDocument() {
  return machine->shell.Opened().empty() ? "" : machine->shell.Opened().back();
}

void Serve(const std::string& url, const std::string& page) {
  machine->web.Serve(url, page);
}

void GoOffline() {
  machine->web.GoOffline();
}

int RequestsFor(const std::string& url) {
  const std::vector<std::string>& downloads = machine->web.Downloads();
  return static_cast<int>(std::count(downloads.begin(), downloads.end(), url));
}

void PressDuringDownload(const std::string& key) {
  DuringDownload([key] { machine->user.Presses(key); });
}

void CloseDuringDownload() {
  DuringDownload([] { machine->user.ClosesWindow(); });
}

// A text of the program is in the code page 1252, of which tests use what Latin 1 has as well.
std::string ClipboardText() {
  machine->clipboard.LetGo();
  std::string text;
  for (const char c : machine->clipboard.text()) {
    Utf8::Append(static_cast<unsigned char>(c), text);
  }
  return text;
}

void PutClipboardText(const std::string& text) {
  machine->clipboard.SetText(text);
}

void HoldClipboardForAMoment() {
  machine->clipboard.Hold(2);
}

void HoldClipboard() {
  machine->clipboard.Hold();
}

void PutProgram(const std::string& path) {
  machine->files.Put(path, "MZ and what else a program is made of");
}

ProgramStart StartOf(const std::string& path) {
  const auto& launches = machine->launches.All();
  if (launches.empty() || launches.back().path != path) {
    ADD_FAILURE() << path << " was not started last";
    return {};
  }
  return {launches.back().arguments, true};
}

void Press(const std::string& key) {
  machine->user.Presses(key);
}

// Nothing waits here until the program looks for it: what comes while it is busy comes at once.
void PressWhileBusy(const std::string& key) {
  machine->user.Presses(key);
}

void Type(const std::string& text) {
  machine->user.Types(text);
}

void HoldDown(const std::string& key) {
  machine->user.HoldsDown(key);
}

void LetGoOfKeys() {
  machine->user.LetsGo();
}

void RepeatKey() {
  machine->user.KeyRepeats();
}

void CloseWindow() {
  machine->user.ClosesWindow();
}

void CloseFromTaskbar(const std::string& title) {
  machine->user.ClosesFromTaskbar(title);
}

void ClickRow(const std::string& row) {
  machine->user.Clicks(row);
}

void DoubleClickRow(const std::string& row) {
  machine->user.DoubleClicks(row);
}

void SelectRowUnnoticed(int row) {
  for (Simulated::NativeControl& control : Simulated::WindowInUse()->controls) {
    if (control.kind() == Platform::Control::Kind::ListBox) control.SelectRow(row);
  }
}

void RefuseRow(const std::string& row) {
  machine->screen.refusedRow = row;
}

void ClickButton(const std::string& caption) {
  machine->user.Clicks(caption);
}

std::string Hears() {
  return machine->user.Hears();
}

std::string SelectedText() {
  return machine->user.SelectedText();
}

std::vector<std::string> VisibleWindows() {
  return machine->screen.Titles();
}

std::string ActiveWindow() {
  return machine->user.SeesWindow();
}

std::string Menus() {
  return Described(*Simulated::WindowInUse()->menu, " ");
}

void ChooseMenu(const std::vector<std::string>& captions) {
  std::vector<std::string> shown;
  for (const std::string& caption : captions) {
    shown.push_back(Platform::WithoutAccessKey(caption));
  }
  machine->user.ChoosesMenu(shown);
}

void WhenModalWindowOpens(std::function<void()> action) {
  machine->user.WhenAnythingOpens(std::move(action));
}

MessageBoxSeen MessageBoxOnScreen() {
  const Simulated::OpenBox* box = machine->screen.BoxInUse();
  if (!box) return {};
  return {box->box().title, box->box().text};
}

void ChooseInFileDialog(const std::string& path, std::optional<bool> replaces) {
  machine->user.ChoosesFile(path);
  if (!replaces) return;
  *replaces ? machine->user.AnswersYes() : machine->user.AnswersNo();
}

void WaitUntil(const std::function<bool()>& condition) {
  constexpr int OftenMs = 10;
  for (int times = 0; times < 1000 && !condition(); ++times) machine->user.Waits(OftenMs);
}

void LetTimeGoBy(int milliseconds) {
  machine->user.Waits(milliseconds);
}

void Refuse(Scarce thing, int calls) {
  const auto refuse = [calls](const char* call) {
    machine->faults.FailAnyCall(Simulated::After{calls}, call);
  };
  switch (thing) {
    case Scarce::Windows: return refuse("FormView::FormView");
    case Scarce::Menus: return refuse("FormView::MenuChanged");
    case Scarce::Timers: return refuse("FormView::StartTimer");
  }
}

bool HasRefused() {
  return machine->faults.HasHappened();
}

void ChooseInMissingFolder(const std::string& path) {
  machine->user.ChoosesFile(path);
}

void LeaveFileDialog() {
  machine->user.CancelsFileDialog();
}

}  // namespace TestMachine
