// A little Windows in memory, on which the program runs in tests. Each test makes its own; there is
// one at a time. When it goes, the program's run ends, and it complains about what was left over:
// open files, answers that nobody asked for, windows that never opened.
#pragma once

#include <string>

#include "platform/simulated/Clock.h"
#include "platform/simulated/Complaints.h"
#include "platform/simulated/Disk.h"
#include "platform/simulated/Executable.h"
#include "platform/simulated/Faults.h"
#include "platform/simulated/LocaleSettings.h"
#include "platform/simulated/Mutexes.h"
#include "platform/simulated/Registry.h"
#include "platform/simulated/Screen.h"
#include "platform/simulated/Shell.h"
#include "platform/simulated/Speakers.h"
#include "platform/simulated/User.h"

namespace Simulated {

class Machine {
 public:
  Machine();
  ~Machine();
  Machine(const Machine&) = delete;
  Machine& operator=(const Machine&) = delete;

  // Puts the game there: its folders "vehicles", "tracks" and "sounds", and its uninstall entry in
  // the registry's 32-bit view, as the game's installer writes it.
  //   folder  without a backslash at its end.
  void InstallGame(const std::string& folder);

  // See Faults.
  void FailAnyCall(After after) { faults.FailAnyCall(after); }
  bool FailureHappened() const { return faults.HasHappened(); }
  const std::string& FailedCall() const { return faults.FailedCall(); }

  Faults faults;
  Disk files;
  Registry registry;
  LocaleSettings locale;
  Clock clock;
  Executable executable;
  Mutexes mutexes;
  Speakers sound;
  Shell shell;
  Screen screen;
  User user;
};

// The machine on which the program runs. There must be one.
Machine& TheMachine();

}  // namespace Simulated
