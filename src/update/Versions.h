// Versions as the maker's server publishes them. No file is touched here.
#pragma once

#include <string>
#include <string_view>

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

}  // namespace Versions
