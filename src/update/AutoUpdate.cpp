#include "update/AutoUpdate.h"

#include <exception>
#include <string>

#include "base/PerRun.h"
#include "base/Text.h"
#include "platform/Executable.h"
#include "platform/Files.h"
#include "platform/RandomRange.h"
#include "text/StringTable.h"
#include "ui/Messages.h"
#include "update/UpdateTexts.h"

namespace Updater {

namespace {

// Codes from Lowest up to FirstOn mean off, those from there on mean on, up to the last character
// that can be seen.
constexpr int Lowest = 32;
constexpr int FirstOn = 80;
constexpr int Highest = 126;

struct AutoUpdateOption {
  bool isOn = false;
};

std::string SettingsPath() {
  return Platform::PathBesideProgram(".cfg");
}

bool IsOnInFile() {
  try {
    Platform::FileReader settings(SettingsPath());
    char first = 0;
    // More than that is not looked at, however long the file is.
    return settings.Read(&first, 1) == 1 && static_cast<unsigned char>(first) >= FirstOn;
  } catch (const std::exception&) {
    return false;
  }
}

}  // namespace

bool ReadAutoUpdateSetting() {
  return PerRun<AutoUpdateOption>().isOn = IsOnInFile();
}

bool IsAutoUpdateOn() {
  return PerRun<AutoUpdateOption>().isOn;
}

void ToggleAutoUpdate() {
  const bool isOn = !IsAutoUpdateOn();
  const LangText& state = isOn ? UpdateTexts.On : UpdateTexts.Off;
  const std::string text = GetLangString(UpdateTexts.AutoUpdate) + " " + GetLangString(state) + ".";
  Messages::Show(text, UpdateTexts.Information, Platform::Icon::Information);
  const int code =
      isOn ? Platform::RandomRange(FirstOn, Highest + 1) : Platform::RandomRange(Lowest, FirstOn);
  // The run keeps to the file: the menu's check mark then tells what the next start will do.
  Platform::WriteWholeFile(SettingsPath(),
                           std::string(1, static_cast<char>(code)).append(Text::LineEnd));
  PerRun<AutoUpdateOption>().isOn = isOn;
}

}  // namespace Updater
