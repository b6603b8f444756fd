// The project's own files, for tests of what they say.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "tests/ProjectFolder.h"

namespace ProjectFile {

inline const std::filesystem::path Root = ProjectFolder;
// Where the build has put the sounds of the vehicles.
inline const std::filesystem::path Sounds = SoundsFolder;
// The same for what server/make-offer.py makes.
inline const std::filesystem::path Website = WebsiteFolder;

// All bytes of a file; empty if there is none.
//   path  from the root of the project, such as "help/index.html"; or a whole path.
inline std::string BytesOf(const std::filesystem::path& path) {
  std::ifstream file(Root / path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace ProjectFile
