// Holds the real machine to the contracts.
#include "tests/machine/RealMachine.h"
#include "tests/platform/FilesContract.h"
#include "tests/platform/NumbersContract.h"
#include "tests/platform/RegistryContract.h"
#include "tests/platform/SystemContract.h"
#include "tests/ui/ControlsContract.h"
#include "tests/ui/DialogsContract.h"
#include "tests/ui/FormsContract.h"
#include "tests/ui/KeysContract.h"
#include "tests/ui/MenusContract.h"
#include "tests/ui/StageContract.h"

int main(int argc, char** argv) {
  if (RealMachine::WasStartedToOpen(argc, argv)) return 0;
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
