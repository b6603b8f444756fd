// Files for whoever judges files: good ones, hostile ones and those in between, by their paths in a
// folder, with "/" between names. They are the same each time.
#pragma once

#include <map>
#include <string>

#include "tests/RandomText.h"
#include "tests/archive/ArchiveCorpus.h"
#include "tests/archive/ZipBytes.h"
#include "tests/tracks/RandomTrack.h"
#include "tests/vehicles/RandomVehicle.h"

namespace CheckCorpus {

using Files = std::map<std::string, std::string>;

inline std::string Numbered(const std::string& start, int number, const std::string& end) {
  const std::string digits = std::to_string(number);
  return start + std::string(digits.size() < 4 ? 4 - digits.size() : 0, '0') + digits + end;
}

inline const std::string GoodTrack = "0\r\n0\r\n5000\r\n-1\r\n1\r\n";

// Vehicles and tracks as the pack's menus take them. Vehicles lie in a folder with one sound.
inline void AddTexts(int count, unsigned seed, Files& files) {
  RandomText random(seed);
  files["vehicles/rocket/engine.wav"] = "";
  for (int i = 0; i < count; ++i) {
    files[Numbered("vehicles/rocket/v", i, ".vhc")] = RandomFiles::Vehicle(random);
    files[Numbered("tracks/t", i, ".trk")] = RandomFiles::Track(random);
  }
}

// Names as only some of them lead to a file on a Windows disk.
inline void AddNames(Files& files) {
  files["names/H\xC3\xBCgel.wav"] = "";
  files["names/Deep/Horn.wav"] = "";
  int number = 0;
  for (const char* name : {"H\xFCgel.wav",
                           "h\xDCGEL.WAV",
                           "hugel.wav",
                           "H\xFCgel.wav.",
                           "H\xFCgel.wav ",
                           "H\xFCgel.wav . .",
                           " H\xFCgel.wav",
                           "H\xFCgel.wav\\",
                           "deep",
                           "DEEP/",
                           "deep\\horn.wav",
                           "deep/HORN.wav",
                           "deep\\\\horn.wav",
                           "deep\\..\\h\xFCgel.wav",
                           "none\\..\\h\xFCgel.wav",
                           "..\\names\\deep",
                           "..\\NAMES/h\xFCgel.wav",
                           "deep\\horn.wav\\x",
                           ".",
                           "..",
                           "...",
                           "nul",
                           "nul.wav",
                           "h?gel.wav",
                           "*",
                           "",
                           " ",
                           "deep\\.\\horn.wav",
                           "deep\\horn.wav:x",
                           "\x81\x8D.wav"}) {
    files[Numbered("names/n", number++, ".vhc")] = "enginesound=" + std::string(name) + "\r\n";
  }
}

// Lines beyond the length at which they come in pieces.
inline void AddLongLines(Files& files) {
  RandomText random(77);
  for (int i = 0; i < 12; ++i) {
    files[Numbered("long/v", i, ".vhc")] = random.Stretched(RandomFiles::Vehicle(random));
    files[Numbered("long/t", i, ".trk")] = random.Stretched(RandomFiles::Track(random));
  }
}

inline void AddRecordsAndLanguages(Files& files) {
  const std::string records[] = {"",
                                 "hill=1000\r\n",
                                 "hill=1000\r\n\r\nlake\r\n",
                                 "a=b=1\r\na=x",
                                 "hill=1e400\r\n",
                                 std::string("\0=\0\r\n", 5)};
  int number = 0;
  for (const std::string& each : records) {
    files[Numbered("records", number++, "/highscore.cfg")] = each;
  }
  files["languages/good.lng"] = "; a comment\r\nXFile=&Datei\r\nLine=Zeile ; of a text\n";
  files["languages/bad.lng"] = "  XFile=&Datei\rno text\n\r\nxfile=1\r\n\xFF=\x81\r\n=\r\n";
}

inline std::string Package(const std::vector<ZipBytes::Member>& members) {
  return ZipBytes::Bytes({.members = members});
}

inline void AddPackages(Files& files) {
  int number = 0;
  for (const auto& hostile : ArchiveCorpus::HostileArchives()) {
    files[Numbered("hostile/h", number++, ".zip")] = hostile.bytes;
  }
  number = 0;
  for (const auto& good : ArchiveCorpus::GoodArchives()) {
    files[Numbered("good/g", number++, ".zip")] = good.bytes;
  }
  const std::string named = "enginesound=engine.wav\r\nhornsound=Sounds/HORN.wav\r\n";
  files["packages/track.zip"] = Package({{.name = "hill.trk", .contents = GoodTrack}});
  files["packages/vehicle.zip"] = Package({{.name = "r/rocket.VHC", .contents = named},
                                           {.name = "R/Engine.wav", .contents = "1"},
                                           {.name = "r/sounds/horn.wav", .contents = "1"}});
  files["packages/soundless.zip"] = Package({{.name = "rocket.vhc", .contents = named}});
  files["packages/outside.zip"] =
      Package({{.name = "r/rocket.vhc", .contents = "enginesound=..\\..\\vehicle.zip\r\n"},
               {.name = "readme.txt", .contents = "1"}});
  files["packages/two.zip"] = Package(
      {{.name = "a.trk", .contents = GoodTrack}, {.name = "b.vhc", .contents = "steering=x\r\n"}});
  files["packages/none.zip"] = Package({{.name = "readme.txt", .contents = "1"}});
  files["packages/long.zip"] =
      Package({{.name = std::string(250, 'n') + "/a.trk", .contents = GoodTrack}});
  RandomText random(5);
  for (int i = 0; i < 60; ++i) {
    files[Numbered("packages/v", i, ".zip")] =
        Package({{.name = "rocket.vhc", .contents = RandomFiles::Vehicle(random)},
                 {.name = "ENGINE.wav", .contents = "1"}});
    files[Numbered("packages/t", i, ".zip")] =
        Package({{.name = "hill.trk", .contents = RandomFiles::Track(random)}});
  }
  // Good ones with a few bytes changed: cut, lying or whole after all.
  const std::string whole = files["packages/vehicle.zip"];
  for (int i = 0; i < 150; ++i) files[Numbered("mutated/m", i, ".zip")] = random.Mutated(whole);
}

inline Files All() {
  Files files;
  AddTexts(400, 4, files);
  AddNames(files);
  AddLongLines(files);
  AddRecordsAndLanguages(files);
  AddPackages(files);
  return files;
}

}  // namespace CheckCorpus
