// Stories of updates: the pack is at version 1.1.5, and the server is there.
#pragma once

#include <string>

#include "tests/internet/InternetStory.h"

class UpdateStory : public InternetStory {
 protected:
  static inline const std::string Records = Server + "/orvane/software/versions.dat";
  static inline const std::string Installer = Server + "/orvane/software/sk2up.exe";
  static inline const std::string UpdaterFile = Pack + "orvsk2packupdater.exe";
  static inline const std::string Settings = Pack + "sk2pack.cfg";
  static inline const std::string Title = "Skidrun2 Utility Pack V1.1.5";

  UpdateStory() {
    machine.executable.version.major = 1;
    machine.executable.version.minor = 1;
    machine.executable.version.revision = 5;
    machine.web.Serve(Installer, "MZ installer");
  }

  void Publish(const std::string& version) {
    machine.web.Serve(Records, "sk2up=" + version + "\r\n");
  }
  void Checks() { user.ChoosesMenu({"Help", "Check for Updates"}); }
};
