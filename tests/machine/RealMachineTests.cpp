// Holds the real machine to the contracts.
#include <string_view>

#include "tests/archive/ArchiveContract.h"
#include "tests/machine/RealMachine.h"
#include "tests/platform/CharactersContract.h"
#include "tests/platform/ClipboardContract.h"
#include "tests/platform/FilesContract.h"
#include "tests/platform/FoldersContract.h"
#include "tests/platform/LaunchContract.h"
#include "tests/platform/NumbersContract.h"
#include "tests/platform/RecorderContract.h"
#include "tests/platform/RegistryContract.h"
#include "tests/platform/SavesContract.h"
#include "tests/platform/SignatureContract.h"
#include "tests/platform/SoundContract.h"
#include "tests/platform/SystemContract.h"
#include "tests/platform/WebContract.h"
#include "tests/ui/ControlsContract.h"
#include "tests/ui/DialogsContract.h"
#include "tests/ui/FormsContract.h"
#include "tests/ui/KeysContract.h"
#include "tests/ui/LongStepContract.h"
#include "tests/ui/MenusContract.h"
#include "tests/ui/ScarcityContract.h"
#include "tests/ui/StageContract.h"
#include "tests/ui/TimersContract.h"

// contract-tests [--speakers=FILE]: the file is the one that E2e::Recording reads.
int main(int argc, char** argv) {
  if (RealMachine::WasStartedToOpen(argc, argv) || RealMachine::WasStartedToSave(argc, argv) ||
      RealMachine::WasStartedToRecord(argc, argv)) {
    return 0;
  }
  RealMachine::WatchMicrophones();
  testing::InitGoogleTest(&argc, argv);
  for (int i = 1; i < argc; ++i) {
    constexpr std::string_view Option = "--speakers=";
    const std::string_view argument = argv[i];
    if (argument.starts_with(Option)) RealMachine::SpeakersFile() = argument.substr(Option.size());
  }
  return RUN_ALL_TESTS();
}
