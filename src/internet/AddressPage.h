// The web page that tells its caller's public address. No file is touched here.
#pragma once

#include <string>
#include <string_view>

namespace AddressPage {

// The address in a page. The page is cut at its line ends (CR or CR LF; a lone LF is none) and each
// line at every "."; what counts in it, numbered from 0, are the last four characters of field 11,
// the fields 12 and 13, and the first four characters of field 14, with "." between them and
// without the blanks around the whole. The last line tells the address; without any line it is
// empty.
//
// The rule is that of the page which the pack has always asked, in which the address stands behind
// eleven dots. Nothing of what falls into the four characters is examined: of "200<br>" the "<"
// stays.
// Fails with RuntimeError SubscriptOutOfRange, cause AddressPageNotUnderstood, if a line has fewer
// than 15 fields.
std::string AddressIn(std::string_view page);

}  // namespace AddressPage
