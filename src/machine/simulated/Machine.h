// A little Windows in memory, on which the program runs in tests. Each test makes its own; there is
// one at a time. When it goes, the program's run ends, and it complains about what was left over:
// open files, answers that nobody asked for, windows that never opened.
#pragma once

#include <string>

#include "machine/simulated/ClipboardState.h"
#include "machine/simulated/Clock.h"
#include "machine/simulated/Complaints.h"
#include "machine/simulated/Disk.h"
#include "machine/simulated/Executable.h"
#include "machine/simulated/Faults.h"
#include "machine/simulated/Launches.h"
#include "machine/simulated/LocaleSettings.h"
#include "machine/simulated/Microphone.h"
#include "machine/simulated/Mutexes.h"
#include "machine/simulated/Registry.h"
#include "machine/simulated/Screen.h"
#include "machine/simulated/Shell.h"
#include "machine/simulated/Speakers.h"
#include "machine/simulated/User.h"
#include "machine/simulated/WebSites.h"

namespace Simulated {

class Machine {
 public:
  Machine();
  ~Machine();
  Machine(const Machine&) = delete;
  Machine& operator=(const Machine&) = delete;

  // The program has ended, however that was, and is to be started again: what it had open is
  // closed, its objects are gone, and no fault is left.
  void StartAnew();

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
  Microphone microphone;
  Shell shell;
  Launches launches;
  Clipboard clipboard;
  Web web;
  Screen screen;
  User user;
};

// The machine on which the program runs. There must be one.
Machine& TheMachine();

}  // namespace Simulated
