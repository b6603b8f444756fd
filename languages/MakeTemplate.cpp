// Writes the translators' template: cmake --build --preset host --target template
//
//   make-template FILE
#include <cstdio>
#include <cstdlib>
#include <fstream>

#include "app/LanguageTemplate.h"

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: make-template FILE\n");
    return EXIT_FAILURE;
  }
  const std::string text = LanguageTemplate();
  std::ofstream file(argv[1], std::ios::binary);
  file.write(text.data(), static_cast<std::streamsize>(text.size()));
  file.close();
  if (file) return EXIT_SUCCESS;
  std::fprintf(stderr, "%s cannot be written\n", argv[1]);
  return EXIT_FAILURE;
}
