// The files of a site: what the web server is to serve, made of what a maker offers.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "tools/Catalogue.h"

namespace SiteFiles {

struct SiteFile {
  std::string text;    // what it holds, if it is made here
  std::string source;  // the path of the file that it is a copy of; empty if it is made here
  FileSum sum;
};
// By their paths in the site, such as "orvane\games\sk2\data\cars.lst".
using Files = std::map<std::string, SiteFile>;

// The path in the site of an address, such as "/orvane/software/versions.dat".
std::string PathOf(const std::string& address);

// Where a file of the folder "software" is served.
std::string SoftwarePathOf(const Catalogue::File& file);

// The list of the add-ons of a kind, as the pack reads it.
std::string ListOf(const std::vector<Catalogue::AddOn>& addOns);

// All files: the lists, the archives, the record of versions if there is any, the page that tells
// of it all, programs, and the maker's own pages. A page that would take the place of another file
// is left out and added to the faults.
//   folder  that of the contents.
Files Of(const std::string& folder, const Catalogue::Contents& contents, Catalogue::Faults& faults);

}  // namespace SiteFiles
