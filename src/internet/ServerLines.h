// The lines of the server list, "iplist.dat": "name=address" each. No file is touched here.
//
// The name is what stands before the first "=", so that it can hold none; the address, which may be
// any text, holds the others. Lines without "=" are none of the list.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ServerLines {

// A line as the user sees it: "name (address)". Nothing if it has no "=".
std::optional<std::string> RowOf(std::string_view line);

// The address in a row: what stands behind its first "(", without the last character. Of a name
// that itself holds a "(" the rest is taken for a part of the address, as it always has been.
// Empty if there is no "(".
std::string AddressOf(std::string_view row);

// True if a line of the list has this address; letter case and blanks count.
bool HasAddress(std::string_view line, std::string_view address);

// The text of the list without all lines that have this address, and without those that are none of
// the list. The others keep their order, and end in CR LF each. Empty if none is left.
std::string Without(std::string_view text, std::string_view address);

// What is to be written at the end of the list for one more server. The entry stands on a line of
// its own, even behind a last line that lacks its end.
std::string Addition(std::string_view text, std::string_view name, std::string_view address);

}  // namespace ServerLines
