// The folders and files that a test works on: copies, in a folder of its own that goes with it.
#pragma once

#include <string>
#include <vector>

namespace E2e {

// Where things are, as the program was told on its command line.
struct Places {
  std::string pack;       // the staged program
  std::string versions;   // the same program under other version numbers, and installers of it
  std::string demo;       // the demo game
  std::string pictures;   // where the pictures of the windows go
  std::string speakers;   // the file of Recording; empty if nobody records them
  std::string web;        // the folder of ServedFile
  std::string installer;  // sk2up.exe
};
Places& Given();

// A folder for one test, removed with all that is in it.
class ScratchFolder {
 public:
  ScratchFolder();
  ~ScratchFolder();
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  const std::string& path() const { return path_; }

 private:
  std::string path_;
};

// Copies a folder with all that is in it; the target and the folders above it are made.
void CopyFolder(const std::string& from, const std::string& to);
// The whole file, byte for byte. Throws std::runtime_error if it cannot be read.
std::string ReadFile(const std::string& path);
// Makes or replaces a file, byte for byte.
void WriteFile(const std::string& path, const std::string& bytes);
bool Exists(const std::string& path);
// The names in a folder, sorted.
std::vector<std::string> NamesIn(const std::string& folder);

}  // namespace E2e
