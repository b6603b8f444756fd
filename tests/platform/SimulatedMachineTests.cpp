// Holds the simulated machine to the contracts.
#include "tests/platform/DialogsContract.h"
#include "tests/platform/FilesContract.h"
#include "tests/platform/FormsContract.h"
#include "tests/platform/NumbersContract.h"
#include "tests/platform/RegistryContract.h"
#include "tests/platform/SystemContract.h"
