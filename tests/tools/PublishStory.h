// A maker's folder and a site on the simulated machine.
#pragma once

#include <map>
#include <set>
#include <sstream>
#include <string>

#include "internet/ComponentRecords.h"
#include "tests/Story.h"
#include "tests/archive/ZipBytes.h"
#include "text/StringTable.h"
#include "tools/FolderTree.h"
#include "tools/PublishCommand.h"

namespace Published {

inline const std::string Folder = "C:\\Offer";
inline const std::string Site = "C:\\Site";
inline const std::string Current = Site + "\\current\\";
inline const std::string Data = Current + "orvane\\games\\sk2\\data\\";

// An archive with one good car or track.
inline std::string Car(const std::string& name, const std::string& horn = "a horn") {
  return ZipBytes::Bytes(
      {.members = {{.name = name + ".vhc", .contents = "skidrun=1\r\nhornsound=horn.wav\r\n"},
                   {.name = "horn.wav", .contents = horn}}});
}
inline std::string Track(const std::string& name) {
  return ZipBytes::Bytes(
      {.members = {{.name = name + ".trk", .contents = "0\r\n0\r\n5000\r\n-1\r\n0\r\n"},
                   {.name = name + ".wav", .contents = "a description"}}});
}
inline std::string Language() {
  return ZipBytes::Bytes({.members = {{.name = "welcome.wav", .contents = "bonjour"}}});
}

// Something of every kind.
inline void PutOffer(Simulated::Machine& machine) {
  auto& files = machine.files;
  files.Put(Folder + "\\cars\\cricket.zip", Car("cricket"));
  files.Put(Folder + "\\cars\\coach.zip", Car("coach"));
  files.Put(Folder + "\\cars\\coach.txt", "Night Coach\r\nIt has <lights> & a horn.\r\n");
  files.Put(Folder + "\\tracks\\marsh.zip", Track("marsh"));
  files.Put(Folder + "\\langs\\Francais.zip", Language());
  files.Put(Folder + "\\software\\versions.txt", "sk2up=1.2.0\nother=3.0.1\n");
  files.Put(Folder + "\\software\\sk2up.exe", "MZ an installer");
  files.Put(Folder + "\\pages\\index.html", "<h1>Home</h1>");
  files.Put(Folder + "\\pages\\pictures\\car.png", "a picture");
}

// All files in a folder with what they hold, by their paths from it on.
inline std::map<std::string, std::string> Tree(const Simulated::Machine& machine,
                                               const std::string& folder) {
  std::map<std::string, std::string> tree;
  for (const std::string& name : machine.files.Names(folder)) {
    const std::string path = folder + "\\" + name;
    const Simulated::DiskEntry* const entry = machine.files.Find(path);
    if (!entry->isFolder) {
      tree[name] = machine.files.Text(path);
      continue;
    }
    for (const auto& [inner, text] : Tree(machine, path)) tree[name + "\\" + inner] = text;
  }
  return tree;
}
inline std::map<std::string, std::string> Served(const Simulated::Machine& machine) {
  return machine.files.Exists(Site + "\\current") ? Tree(machine, Site + "\\current")
                                                  : std::map<std::string, std::string>();
}

struct Told {
  int status = -1;
  std::string out;
  std::string errors;
};
inline Told PublishWith(const std::vector<std::string>& arguments) {
  SpeakOnlyFrom("");
  std::ostringstream out;
  std::ostringstream errors;
  const int status = PublishCommand::Run(arguments, "1.0.0", out, errors);
  return {status, out.str(), errors.str()};
}
inline Told Publish() {
  return PublishWith({Folder, Site});
}

}  // namespace Published

class PublishStory : public Story {
 protected:
  void SetUp() override {
    Story::SetUp();
    Published::PutOffer(machine);
  }
  void Put(const std::string& path, const std::string& bytes) {
    machine.files.Put(Published::Folder + "\\" + path, bytes);
  }
  void Remove(const std::string& path) { machine.files.Delete(Published::Folder + "\\" + path); }
  std::string Text(const std::string& path) { return machine.files.Text(path); }
};
