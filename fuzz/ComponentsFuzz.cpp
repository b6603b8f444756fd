// Lists of add-ons of any bytes: each name that is shown leads to a file name of the list, and no
// file name that may be installed leads out of the game.
#include <string>

#include "fuzz/Require.h"
#include "internet/ComponentPlaces.h"
#include "internet/ComponentRecords.h"
#include "internet/Components.h"
#include "machine/simulated/Machine.h"
#include "tests/SimulatedGame.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const Simulated::Machine machineOfThisRun;
  Simulated::Machine& machine = Simulated::TheMachine();
  const std::string game = "C:\\Games\\Skidrun2";
  InstallGame(machine, game);
  const std::string file(reinterpret_cast<const char*>(data), size);
  const ComponentRecords::Lines lines = ComponentRecords::LinesIn(file);
  Require((lines.badLine == 0) || lines.text.empty());
  Require(lines.badLine <= size + 1);
  for (const std::string& name : ComponentRecords::DisplayNames(lines.text)) {
    Require(name.find_first_of(":\r\n") == std::string::npos);
    std::string fileName = ComponentRecords::FileNameOf(lines.text, name);
    Require(lines.text.find(":" + fileName) != std::string::npos || fileName.empty());
    while (fileName.ends_with('\r')) fileName.pop_back();
    for (int kind = 0; kind < ComponentPlaces::Count; ++kind) {
      if (!ComponentPlaces::IsInstallable(kind, fileName)) continue;
      const std::string folder = Components::TargetFolderOf(kind, fileName);
      Require(folder.starts_with(game + "\\"));
      Require(folder.find("..\\") == std::string::npos && !folder.ends_with('.'));
      Require(fileName.find_first_of("\\/:") == std::string::npos);
    }
  }
  return 0;
}
