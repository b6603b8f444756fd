// What a maker offers: a folder of archives, texts about them, releases of programs and web pages.
//
//   cars\coach.zip        an archive of a car; so are tracks and langs for tracks and languages
//   cars\coach.txt        may stand beside it: its first line is the display name, the others, if
//                         any, say more about the archive on the web page
//   software\sk2up.exe    the pack's installer; other files in software are served as they are
//   software\versions.txt one "product=version" a line
//   pages\                web pages of the maker's own, served from "/" on as they are
//
// Every folder may be missing. Hidden files, and those whose names begin with ".", are passed over.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "internet/ComponentPlaces.h"
#include "tools/FileSum.h"
#include "update/Versions.h"

namespace Catalogue {

// Something that keeps all of the folder from being published.
struct Fault {
  std::string file;    // from the folder on, such as "cars\coach.zip"; empty for the folder itself
  std::string reason;  // a sentence
};
using Faults = std::vector<Fault>;

struct File {
  std::string path;  // from the folder on
  std::string name;
  FileSum sum;
};

struct AddOn {
  File archive;
  std::string displayName;
  std::string description;  // UTF-8, lines with line feeds between them; may be empty
};

struct Contents {
  // By kind. In the order in which players see them: by their display names.
  std::array<std::vector<AddOn>, ComponentPlaces::Count> addOns;
  std::vector<Versions::Record> versions;
  std::vector<File> software;
  std::vector<File> pages;
};

inline constexpr const char* SoftwareFolder = "software";
inline constexpr const char* VersionsFile = "software\\versions.txt";
inline constexpr const char* PagesFolder = "pages";

// Reads a folder. What cannot be published of it is left out of the contents and added to the
// faults. Fails with PathNotFound if there is no such folder, and as Platform::ListFolder and
// FileReader do.
Contents Read(const std::string& folder, Faults& faults);

}  // namespace Catalogue
