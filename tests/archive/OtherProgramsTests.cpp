// Beside other programs: what they pack is unpacked here as they unpack it themselves, and what is
// packed here they unpack. A program that is not installed is left out.
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "platform/Characters.h"
#include "platform/Files.h"
#include "tests/archive/ArchiveCorpus.h"
#include "tests/archive/ArchiveStory.h"

#include <unistd.h>

namespace {

using ArchiveCorpus::Short;
namespace fs = std::filesystem;

// A folder of the machine that runs the tests, which goes with the test.
class HostFolder {
 public:
  HostFolder() : path_((fs::temp_directory_path() / "sk2archivesXXXXXX").string()) {
    if (!mkdtemp(path_.data())) throw std::runtime_error("no temporary folder can be made");
  }
  ~HostFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  }
  HostFolder(const HostFolder&) = delete;
  HostFolder& operator=(const HostFolder&) = delete;
  fs::path operator/(const std::string& name) const { return fs::path(path_) / name; }

 private:
  std::string path_;
};

std::string BytesOf(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void PutHostFile(const fs::path& path, const std::string& bytes) {
  fs::create_directories(path.parent_path());
  std::ofstream file(path, std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

bool Runs(const std::string& command) {
  return std::system(("{ " + command + "; } >/dev/null 2>&1").c_str()) == 0;
}

bool IsInstalled(const std::string& program) {
  return Runs("command -v " + program);
}

class OtherPrograms : public ArchiveStory {
 protected:
  // The files that are packed: a folder in a folder, an empty one, letters beyond ASCII.
  void PutFiles() {
    std::string noise;
    unsigned state = 1;
    for (int i = 0; i < 300'000; ++i) {
      state = state * 1664525 + 1013904223;
      noise += static_cast<char>(state >> 24);
    }
    PutHostFile(from / "car.vhc", ArchiveCorpus::Song());
    PutHostFile(from / "sounds/engine.wav", noise);
    PutHostFile(from / "sounds/empty.wav", "");
    PutHostFile(from / "sounds/H\xC3\xBCgel.wav", "uphill");
    fs::create_directories(from / "tracks");
  }

  // What stands in a folder of the host, as the simulated machine would name it.
  static Tree HostTreeOf(const fs::path& top) {
    Tree tree;
    for (const auto& entry : fs::recursive_directory_iterator(top)) {
      std::string name = Platform::FromUtf8(fs::relative(entry.path(), top).string());
      std::replace(name.begin(), name.end(), '/', '\\');
      if (entry.is_directory()) {
        tree[name + "\\"] = "";
      } else {
        tree[name] = BytesOf(entry.path());
      }
    }
    return tree;
  }

  // Runs a command in the folder of the files, with the path of its archive in the variable PACKED.
  bool Packs(const std::string& command) const {
    fs::remove(hostZip);
    return Runs("export LC_ALL=C.UTF-8 PACKED=\"" + hostZip.string() + "\"; cd " + from.string() +
                "; " + command) &&
           fs::exists(hostZip);
  }

  HostFolder host;
  const fs::path from = host / "from";
  const fs::path hostZip = host / "other.zip";
};

struct Packer {
  const char* program;
  std::string command;
  bool tellsTimes;  // to the second, and of all time zones
};

std::vector<Packer> Packers() {
  const std::string python =
      "python3 -c \"import zipfile,os,sys\n"
      "z=zipfile.ZipFile(OUT,'w',METHOD)\n"
      "for d,s,f in os.walk('.'):\n"
      "  for n in f: WRITE\n"
      "z.close()\n\"";
  const auto inPython = [&](const std::string& out, const std::string& method,
                            const std::string& write) {
    std::string command = python;
    for (const auto& [word, text] :
         {std::pair{"OUT", out}, std::pair{"METHOD", method}, std::pair{"WRITE", write}}) {
      command.replace(command.find(word), std::string(word).size(), text);
    }
    return command;
  };
  const std::string file = "os.environ['PACKED']";
  return {
      {"zip", "zip -r \"$PACKED\" .", true},
      {"zip", "zip -0 -r \"$PACKED\" .", true},
      {"zip", "zip -9 -r -D -X \"$PACKED\" *", false},
      {"zip", "zip -r -fz \"$PACKED\" .", true},
      {"zip", "zip -r -fd \"$PACKED\" .", true},
      {"zip", "zip -r - . | cat >\"$PACKED\"", true},
      {"zip", "zip -r ../p.zip . && cat /bin/true ../p.zip >\"$PACKED\"; rm ../p.zip", true},
      {"zip",
       "zip -r ../p.zip . && cat /bin/true ../p.zip >\"$PACKED\" && zip -A \"$PACKED\"; rm "
       "../p.zip",
       true},
      {"zip", "zip -r \"$PACKED\" . && echo 'a comment' | zip -z \"$PACKED\"", true},
      {"7z", "7z a -tzip \"$PACKED\" .", true},
      {"7z", "7z a -tzip -mx=9 -mcu=on \"$PACKED\" .", true},
      {"7z", "7z a -tzip -mx=0 \"$PACKED\" .", true},
      {"bsdtar", "bsdtar -a -cf \"$PACKED\" .", true},
      {"bsdtar", "bsdtar -a -cf \"$PACKED\" *", true},
      {"bsdtar", "bsdtar --format zip -cf - * | cat >\"$PACKED\"", true},
      {"bsdtar", "bsdtar --format zip --options zip:compression=store -cf \"$PACKED\" *", true},
      {"python3", inPython(file, "8", "z.write(os.path.join(d,n))"), false},
      {"python3", inPython(file, "0", "z.write(os.path.join(d,n))"), false},
      {"python3",
       inPython(file, "8",
                "\n   with z.open(os.path.join(d,n)[2:],'w',force_zip64=True) as e: "
                "e.write(open(os.path.join(d,n),'rb').read())"),
       false},
      {"python3",
       inPython("sys.stdout.buffer", "8", "z.write(os.path.join(d,n))") + " | cat >\"$PACKED\"",
       false},
      {"python3",
       "python3 -c \"import shutil,os; "
       "shutil.make_archive(os.environ['PACKED'][:-4],'zip')\"",
       false},
  };
}

TEST_F(OtherPrograms, WhatTheyPackIsUnpackedAsTheyDo) {
  ASSERT_TRUE(IsInstalled("unzip"));
  PutFiles();
  int packed = 0;
  for (const Packer& packer : Packers()) {
    SCOPED_TRACE(packer.command);
    if (!IsInstalled(packer.program)) continue;
    ASSERT_TRUE(Packs(packer.command));
    const std::string number = std::to_string(++packed);
    const fs::path reference = host / ("unzipped" + number);
    // It warns of a program before the archive.
    Runs("export LC_ALL=C.UTF-8; unzip -q " + hostZip.string() + " -d " + reference.string());

    const std::string into = game + number;
    machine.files.Put(zip, BytesOf(hostZip));
    const auto failure = FailureOf([&] { Archive::Extract(zip, into, ""); });
    ASSERT_FALSE(failure) << failure->what() << " " << failure->file();
    const Tree tree = TreeOf(machine, into);
    EXPECT_EQ(Short(tree), Short(HostTreeOf(reference)));
    EXPECT_EQ(tree.at("car.vhc"), ArchiveCorpus::Song());
    EXPECT_EQ(tree.count("sounds\\H\xFCgel.wav"), 1u);
    if (!packer.tellsTimes) continue;
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(
        std::chrono::file_clock::to_sys(fs::last_write_time(from / "car.vhc")).time_since_epoch());
    const auto stamp = Platform::StampOf(into + "\\car.vhc");
    EXPECT_EQ(static_cast<int64_t>(stamp->lastWrite / 10'000'000) - 11'644'473'600,
              seconds.count());
  }
  EXPECT_GT(packed, 0) << "there is no program that packs";
}

TEST_F(OtherPrograms, UnpackWhatIsPackedHere) {
  PutFiles();
  const std::string folder = "C:\\from\\";
  machine.files.Put(folder + "car.vhc", ArchiveCorpus::Song());
  machine.files.Put(folder + "engine.wav", BytesOf(from / "sounds/engine.wav"));
  machine.files.Put(folder + "empty.wav", "");
  machine.files.Put(folder + "H\xFCgel.wav", "uphill");
  Archive::Pack(zip, {folder + "car.vhc", folder + "empty.wav"});
  Archive::Pack(zip, {folder + "H\xFCgel.wav", folder + "engine.wav", folder + "car.vhc"});
  PutHostFile(hostZip, machine.files.Text(zip));
  const Tree wanted = TreeOf(machine, "C:\\from");

  int unpacked = 0;
  const std::string archive = hostZip.string();
  for (const auto& [program, command] : std::map<std::string, std::string>{
           {"unzip", "unzip -t " + archive + " && unzip -q " + archive + " -d "},
           {"7z", "7z t " + archive + " && 7z x " + archive + " -o"},
           {"bsdtar", "bsdtar -xf " + archive + " -C "},
           {"python3",
            "python3 -m zipfile -t " + archive + " && python3 -m zipfile -e " + archive + " "}}) {
    if (!IsInstalled(program)) continue;
    const fs::path into = host / program;
    fs::create_directories(into);
    EXPECT_TRUE(Runs("export LC_ALL=C.UTF-8; " + command + into.string())) << program;
    EXPECT_EQ(Short(HostTreeOf(into)), Short(wanted)) << program;
    ++unpacked;
  }
  EXPECT_GT(unpacked, 0) << "there is no program that unpacks";
}

// What they add to an archive of ours, and we to theirs.
TEST_F(OtherPrograms, AddToWhatIsPackedHereAndTheOtherWayRound) {
  ASSERT_TRUE(IsInstalled("zip") && IsInstalled("unzip"));
  PutFiles();
  machine.files.Put("C:\\one.trk", "1");
  machine.files.Put("C:\\two.trk", "2");
  Archive::Pack(zip, {"C:\\one.trk"});
  PutHostFile(hostZip, machine.files.Text(zip));
  ASSERT_TRUE(
      Runs("export LC_ALL=C.UTF-8; cd " + from.string() + "; zip -r " + hostZip.string() + " ."));
  machine.files.Put(zip, BytesOf(hostZip));
  Archive::Pack(zip, {"C:\\two.trk"});
  PutHostFile(hostZip, machine.files.Text(zip));
  EXPECT_TRUE(Runs("export LC_ALL=C.UTF-8; unzip -q " + hostZip.string() + " -d " +
                   (host / "into").string()));
  Extract();
  const Tree tree = Game();
  EXPECT_EQ(Short(tree), Short(HostTreeOf(host / "into")));
  EXPECT_EQ(tree.at("one.trk") + tree.at("two.trk"), "12");
  EXPECT_EQ(tree.count("sounds\\H\xFCgel.wav"), 1u);
}

}  // namespace
