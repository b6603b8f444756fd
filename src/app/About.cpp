#include "app/About.h"

#include <string>

#include "app/AppTexts.h"
#include "app/Program.h"
#include "base/RuntimeError.h"
#include "game/Addresses.h"
#include "game/Application.h"
#include "text/StringTable.h"
#include "ui/MsgBox.h"

namespace About {

namespace {

// The box must come without a game too: it is what a user reads to whoever helps them.
std::string GameFolderIfInstalled() {
  try {
    return Application::GameFolder();
  } catch (const RuntimeError&) {
    return "";
  }
}

}  // namespace

void ShowAbout() {
  const auto look = [](const LangText& text) { return GetLangString(text); };
  const auto field = [&look](const LangText& name, const std::string& value) {
    return look(name) + ": " + value + "\r\n";
  };
  const Platform::ProgramVersion version = Platform::ReadProgramVersion();
  std::string text = "SK2Pack " + look(AppTexts.Information) + ":\r\n";
  text += version.productName + Program::VersionSuffix(version) + ", " +
          look(AppTexts.ExecutableFile) + " " + Platform::PathBesideProgram(".exe") + "\r\n";
  text += "Skidrun2 " + look(AppTexts.Information) + ":\r\n";
  text += field(AppTexts.InstallationFoundAtLocation, GameFolderIfInstalled());
  text += field(AppTexts.Version, Application::GameVersion());
  text += field(AppTexts.Publisher, Application::GamePublisher());
  text += look(AppTexts.AboutContact1) + " " + Addresses::SupportMail + " ";
  text += look(AppTexts.AboutContact2) + " " + Application::GameContact() + " ";
  text += look(AppTexts.AboutContact3);
  Platform::MsgBox(text, look(AppTexts.About) + " Skidrun2/Skidrun2 Utility Pack",
                   Platform::Icon::Information);
}

}  // namespace About
