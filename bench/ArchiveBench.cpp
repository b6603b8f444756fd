// Packing and unpacking, beside "zip -9" and "unzip" on the same files.
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "archive/Extraction.h"
#include "archive/Packing.h"
#include "bench/Arguments.h"
#include "bench/Contest.h"
#include "machine/simulated/Machine.h"
#include "tests/HostFile.h"

#include <unistd.h>
#include <zlib.h>

namespace {

void Require(bool isSo, const char* what) {
  if (isSo) return;
  std::fprintf(stderr, "%s\n", what);
  std::exit(1);
}

void Run(const std::string& command) {
  Require(std::system(("{ " + command + "; } >/dev/null 2>&1").c_str()) == 0, command.c_str());
}

// A sound: a few waves and some noise, which deflating makes a little smaller.
std::string Sound() {
  std::mt19937 random(3);
  std::string samples;
  for (int i = 0; i < 1 << 20; ++i) {
    const int wave = (i * 37 % 4096 - 2048) * 3 + (i * 11 % 1024 - 512) * 7;
    const int sample = wave + static_cast<int>(random() % 64);
    samples += static_cast<char>(sample);
    samples += static_cast<char>(sample >> 8);
  }
  return samples;
}

void CompareUnpacking(const std::string& name, const std::string& packed, const std::string& folder,
                      const Arguments& arguments) {
  Contest contest("Unpacking " + name + ", " + std::to_string(arguments.megabytes) + " MB");
  contest.Add("Extract", [&] {
    Simulated::Machine machine;
    machine.files.MountHostFile("C:\\temp.zip", packed);
    Archive::Extract("C:\\temp.zip", "C:\\Game", "");
    Require(machine.files.Exists("C:\\Game\\sound.wav"), "nothing was unpacked");
  });
  contest.Add("unzip", [&] { Run("unzip -oq " + packed + " -d " + folder); });
  contest.Add("unzip -t, unzip",
              [&] { Run("unzip -tqq " + packed + " && unzip -oq " + packed + " -d " + folder); });
  contest.Run(arguments.rounds);
}

std::string BytesOfHostFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// What deflate itself takes for the bytes: nothing is kept.
void DeflateAtBest(const std::string& bytes) {
  z_stream stream{};
  Require(deflateInit2(&stream, Z_BEST_COMPRESSION, Z_DEFLATED, -MAX_WBITS, 9,
                       Z_DEFAULT_STRATEGY) == Z_OK,
          "deflate does not begin");
  std::string packed(deflateBound(&stream, static_cast<uLong>(bytes.size())), '\0');
  stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data()));
  stream.avail_in = static_cast<uInt>(bytes.size());
  stream.next_out = reinterpret_cast<Bytef*>(packed.data());
  stream.avail_out = static_cast<uInt>(packed.size());
  Require(deflate(&stream, Z_FINISH) == Z_STREAM_END, "deflate does not end");
  deflateEnd(&stream);
}

// A vehicle as players share them: a few lines and three sounds of two megabytes.
void CompareVehicle(const std::string& folder, int rounds) {
  const std::string sound = Sound();
  const std::string lines = "enginesound=a.wav\r\nthrottlesound=b.wav\r\nhornsound=c.wav\r\n";
  const std::vector<std::string> names = {"rocket.vhc", "a.wav", "b.wav", "c.wav"};
  for (const std::string& name : names) {
    std::ofstream file(folder + "/" + name, std::ios::binary);
    file << (name == "rocket.vhc" ? lines : sound);
  }
  size_t size = 0;
  Contest contest("Packing a vehicle, 6 MB");
  contest.Add("Pack", [&] {
    Simulated::Machine machine;
    std::vector<std::string> paths;
    for (const std::string& name : names) {
      paths.push_back("C:\\" + name);
      machine.files.MountHostFile(paths.back(), folder + "/" + name);
    }
    Archive::Pack("C:\\rocket.zip", paths);
    size = machine.files.Text("C:\\rocket.zip").size();
  });
  contest.Add("zlib's deflate", [&] {
    for (const std::string& name : names) DeflateAtBest(BytesOfHostFile(folder + "/" + name));
  });
  contest.Add("zip -9", [&] {
    Run("cd " + folder +
        " && rm -f rocket.zip && zip -9 -q rocket.zip rocket.vhc a.wav b.wav c.wav");
  });
  contest.Run(rounds);
  std::printf("  %zu bytes, those of zip -9 are %zu\n", size,
              BytesOfHostFile(folder + "/rocket.zip").size());
}

}  // namespace

int main(int argc, char** argv) {
  const Arguments arguments(argc, argv);
  if (std::system("command -v zip unzip >/dev/null") != 0) {
    std::printf("There is no zip or unzip to compare with.\n");
    return 0;
  }
  std::string folder = (std::filesystem::temp_directory_path() / "sk2benchXXXXXX").string();
  Require(mkdtemp(folder.data()) != nullptr, "no temporary folder can be made");
  const std::string sound = folder + "/sound.wav";
  const std::string zip = folder + "/sound.zip";
  {
    const std::string samples = Sound();
    std::ofstream file(sound, std::ios::binary);
    for (size_t bytes = 0; bytes < arguments.megabytes << 20; bytes += samples.size()) {
      file.write(samples.data(), static_cast<std::streamsize>(samples.size()));
    }
  }
  {
    Contest contest("Packing a sound, " + std::to_string(arguments.megabytes) + " MB");
    contest.Add("Pack", [&] {
      Simulated::Machine machine;
      machine.files.MountHostFile("C:\\sound.wav", sound);
      Archive::Pack("C:\\sound.zip", {"C:\\sound.wav"});
      Require(machine.files.Exists("C:\\sound.zip"), "nothing was packed");
    });
    const std::string pack =
        "cd " + folder + " && rm -f sound.zip && zip -9 -q sound.zip sound.wav";
    contest.Add("zip -9", [&] { Run(pack); });
    contest.Add("zip -9, unzip -t", [&] { Run(pack + " && unzip -tqq sound.zip"); });
    contest.Run(std::max(1, arguments.rounds / 3));
  }
  CompareVehicle(folder, arguments.rounds);
  CompareUnpacking("a sound", zip, folder, arguments);
  Run("cd " + folder + " && rm sound.zip && zip -0 -q sound.zip sound.wav");
  CompareUnpacking("a stored sound", zip, folder, arguments);
  std::filesystem::remove_all(folder);
}
