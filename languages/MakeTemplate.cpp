// Prints the translators' template: cmake --build --preset host --target template puts it in place.
#include <cstdio>

#include "app/LanguageTemplate.h"

int main() {
  const std::string file = LanguageTemplate();
  return std::fwrite(file.data(), 1, file.size(), stdout) == file.size() ? 0 : 1;
}
