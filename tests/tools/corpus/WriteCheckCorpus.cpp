// Writes the files of CheckCorpus.h into a folder, for programs that are tested from outside.
//   check-corpus FOLDER
#include <cstdio>
#include <filesystem>
#include <fstream>

#include "tests/tools/CheckCorpus.h"

int main(int count, char** arguments) {
  if (count != 2) {
    std::fprintf(stderr, "usage: check-corpus FOLDER\n");
    return 2;
  }
  for (const auto& [name, bytes] : CheckCorpus::All()) {
    const std::filesystem::path path = std::filesystem::path(arguments[1]) / name;
    std::filesystem::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary);
    file << bytes;
    if (!file.flush()) {
      std::fprintf(stderr, "cannot write %s\n", path.c_str());
      return 1;
    }
  }
  return 0;
}
