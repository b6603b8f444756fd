// The web page that tells people what a site offers: every archive and program with its size and
// checksum. Plain HTML, without pictures, colours or scripts: headings to jump to, lists, tables
// with captions and headings, and links that say where they lead.
#pragma once

#include <string>

#include "tools/Catalogue.h"

namespace IndexPage {

// Where it is served.
inline constexpr const char* Address = "/orvane/games/sk2/index.html";

// The page, in UTF-8. Nothing is in it that the same contents would not give again.
std::string Of(const Catalogue::Contents& contents);

}  // namespace IndexPage
