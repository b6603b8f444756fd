// A started pack on a machine that the test brings, for sweeps, which make one for each call.
#pragma once

#include <string>

#include "app/Start.h"
#include "tests/SimulatedGame.h"

// Forgets what the user was going to do in dialogs and boxes that never came.
inline void ForgetPlans(Simulated::User& user) {
  user.script().files.clear();
  user.script().answers.clear();
  user.script().modals.clear();
}

// The game is installed, a file of the user's is there, and the pack has started. Its own folder is
// in place, so that the language file is written too.
struct StartedPack {
  static inline const std::string Game = "C:\\Games\\Skidrun2";

  StartedPack(Simulated::Machine& itsMachine, const std::string& path, const std::string& contents)
      : machine(itsMachine) {
    InstallGame(machine, Game);
    machine.files.PutFolder(machine.executable.folder);
    machine.files.Put(path, contents);
    StartPack();
  }

  void ForgetTheRest() { ForgetPlans(user); }

  bool WasToldOfAFailure() const {
    for (const Simulated::Box& box : user.Boxes()) {
      if (box.icon == Platform::Icon::Critical) return true;
    }
    return false;
  }

  Simulated::Machine& machine;
  Simulated::User& user = machine.user;
};
