// Holds the real machine to the contracts.
#include "tests/platform/ControlsContract.h"
#include "tests/platform/DialogsContract.h"
#include "tests/platform/FilesContract.h"
#include "tests/platform/FormsContract.h"
#include "tests/platform/KeysContract.h"
#include "tests/platform/MenusContract.h"
#include "tests/platform/NumbersContract.h"
#include "tests/platform/RealMachine.h"
#include "tests/platform/RegistryContract.h"
#include "tests/platform/StageContract.h"
#include "tests/platform/SystemContract.h"

int main(int argc, char** argv) {
  if (RealMachine::WasStartedToOpen(argc, argv)) return 0;
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
