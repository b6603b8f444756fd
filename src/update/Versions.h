// Versions as the maker's server publishes them. No file is touched here.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Executable.h"

namespace Versions {

// What stands in place of a version where none is known.
inline constexpr const char* NotConnected = "nc";         // the computer is not online
inline constexpr const char* NoVersionFile = "nvf";       // the records cannot be fetched or read
inline constexpr const char* InvalidVersionFile = "ivf";  // a line of them is no record
inline constexpr const char* NoVersion = "vn";            // none is that of the product

// The version of a product in the records, one a line (ended by CR or CR LF): the product's
// identifier, the separator, the version. Letter case does not count, and the version comes in
// small letters. Of several the last counts. The first line without a separator, an empty one too,
// ends the search with InvalidVersionFile, whatever was found before; NoVersion if there is none.
std::string VersionIn(std::string_view records, std::string_view product,
                      std::string_view separator);

enum Comparison { Newer = 1, Same = 0, Older = -1, Invalid = -2 };

// How a version stands to that of a program: Newer if it is the higher one in the first of its
// three numbers that differ. Invalid unless it has exactly three parts with "." between them, each
// a number as the user's locale writes it, blanks around it allowed. A version without any "." is
// one of whole programs, "2" for "2.0.0"; one with a single "." is not made whole, and so is
// invalid. That has always been so, and versions are published accordingly. Fails with RuntimeError
// Overflow if a number is beyond 32 bits.
Comparison Compare(std::string_view version, const Platform::ProgramVersion& program);

// Where the maker's server has the records and the pack's installer, and what the pack is called
// there.
inline constexpr const char* RecordsPath = "/orvane/software/versions.dat";
inline constexpr const char* InstallerPath = "/orvane/software/sk2up.exe";
inline constexpr const char* Product = "sk2up";
inline constexpr const char* Separator = "=";

// A version as it is published: three whole numbers with "." between them, each of nothing but
// digits and no greater than a program's version can hold. Nothing if the text is none. Whatever
// this takes, Compare takes too, and on every player's machine alike.
std::optional<Platform::ProgramVersion> Published(std::string_view version);

struct Record {
  std::string product;
  std::string version;
};

// The text of a file of records, which VersionIn reads.
//   records  of which no part has a line end and no product the separator.
std::string RecordsOf(const std::vector<Record>& records);

}  // namespace Versions
