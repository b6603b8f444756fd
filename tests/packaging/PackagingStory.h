// Stories of descriptions that are recorded, and of tracks and vehicles that are packaged.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "archive/Directory.h"
#include "archive/EntryReader.h"
#include "platform/LongStep.h"
#include "tests/WaveBytes.h"
#include "tests/app/PackStory.h"

namespace Packaged {

struct File {
  std::string name;
  std::string bytes;
  bool operator==(const File&) const = default;
};
inline void PrintTo(const File& file, std::ostream* out) {
  *out << file.name << " with " << file.bytes.size() << " bytes: " << file.bytes.substr(0, 40);
}

// What an archive holds, in its order.
inline std::vector<File> In(const std::string& archive) {
  const Platform::LongStep step;
  Archive::FileSource source(archive);
  const Archive::Directory directory(source, step);
  std::vector<File> files;
  for (const Archive::Entry& entry : directory.entries()) {
    files.push_back({entry.rawName, ""});
    Archive::EntryReader reader(source, entry);
    for (std::string_view block; reader.Next(block);) files.back().bytes += block;
  }
  return files;
}

}  // namespace Packaged

class PackagingStory : public PackStory {
 protected:
  using File = Packaged::File;
  static inline const std::string Tracks = Game + "\\tracks";
  static inline const std::string Vehicles = Game + "\\vehicles";
  // As the packagers have them.
  static inline const std::string Hill = "c:\\games\\skidrun2\\tracks\\hill";
  static inline const std::string Rocket = "c:\\games\\skidrun2\\vehicles\\rocket";
  static inline const std::string TrackOptions =
      "Track description sound doesn't exist. What to do?";
  static inline const std::string VehicleOptions =
      "Vehicle description sound doesn't exist. What to do?";
  static inline const std::string Aborted = "Packager aborted. No wave file/recording device.";

  PackagingStory() {
    machine.files.Put(Tracks + "\\Hill.TRK", "a track");
    machine.files.Put(Vehicles + "\\Rocket.vhc", "enginesound=car1\r\n");
    StartPack();
  }

  void PackageTrack(const std::string& name = "Hill.TRK") {
    user.ChoosesFile(name);
    user.ChoosesMenu({"Track", "Package"});
  }
  void PackageVehicle(const std::string& name = "Rocket.vhc") {
    user.ChoosesFile(name);
    user.ChoosesMenu({"Vehicle", "Package"});
  }
  // From the window that asks what to do, to the device and on.
  void ChoosesToRecord() {
    user.Presses("Down");
    user.Presses("Enter");
  }
  // Waits until what is recorded or played now has ended and the next box has come.
  void WaitsForBox() {
    const size_t before = user.Boxes().size();
    for (int i = 0; i < 300 && user.Boxes().size() == before; ++i) user.Waits(50);
    EXPECT_GT(user.Boxes().size(), before) << "no box comes";
  }

  std::vector<std::string> BoxTexts() const {
    std::vector<std::string> texts;
    for (const auto& box : user.Boxes()) texts.push_back(box.text);
    return texts;
  }
};
