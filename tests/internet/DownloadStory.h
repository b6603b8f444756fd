// Stories of downloading add-ons: the server has some of each kind.
#pragma once

#include <string>
#include <vector>

#include "tests/archive/ZipBytes.h"
#include "tests/internet/InternetStory.h"

class DownloadStory : public InternetStory {
 protected:
  static inline const std::string Data = Server + "/orvane/games/sk2/data/";
  static inline const std::string Archives = Server + "/orvane/games/sk2/";
  static inline const std::string Components = "SK2 Package Downloader";
  static inline const std::string Files = "Download directory";
  static inline const std::string Success = "File successfully downloaded and installed.";

  DownloadStory() {
    machine.web.Serve(Data + "cars.lst", "Dirt Buggy:buggy.zip\nRocket:rocket.zip\n");
    machine.web.Serve(Data + "tracks.lst", "Night Rally:rally.zip\n");
    machine.web.Serve(Data + "langs.lst", "German:deutsch.zip\n");
    machine.web.Serve(Archives + "cars/buggy.zip", Zip("buggy.vhc", "skidrun=1\r\n"));
    machine.web.Serve(Archives + "cars/rocket.zip", Zip("rocket.vhc", "skidrun=1\r\n"));
    machine.web.Serve(Archives + "tracks/rally.zip", Zip("rally.trk", "0\r\n"));
    machine.web.Serve(Archives + "langs/deutsch.zip", Zip("numbers/1.wav", "eins"));
  }

  static std::string Zip(const std::string& name, const std::string& contents) {
    return ZipBytes::Of({.name = name, .contents = contents});
  }

  void OpensDownloader() { user.ChoosesMenu({"Internet", "Package Downloader"}); }
  // Chooses a kind, counted from 0.
  void ChoosesKind(int kind) {
    OpensDownloader();
    for (int i = 0; i < kind; ++i) user.Presses("Down");
    user.Presses("Enter");
  }
  void ExpectNothingLeft() const {
    for (const char* name : {"list.tmp", "temp.zip", "read.tmp"}) {
      EXPECT_FALSE(machine.files.Exists(Pack + name)) << name;
    }
  }
};
