// Writes what of the help is generated: cmake --build --preset host --target help-pages
//
//   make-help FOLDER    the folder of the pages that are written by hand; the others go there too
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <stdexcept>

#include "help/generator/Pages.h"

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: make-help FOLDER\n");
    return EXIT_FAILURE;
  }
  try {
    const std::filesystem::path folder = argv[1];
    for (const auto& [name, bytes] : Help::Generate(folder)) {
      std::ofstream file(folder / name, std::ios::binary);
      file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
      file.close();
      if (!file) throw std::runtime_error(name + " cannot be written");
    }
    return EXIT_SUCCESS;
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "%s\n", failure.what());
    return EXIT_FAILURE;
  }
}
