// The pack's only ways to the web. All of them wait until what they ask for has come or failed, as
// long steps; none tells the user of a failure.
#pragma once

#include <string>

namespace Internet {

// Fetches an address into a file. True only if the system calls it a success with exactly 0; that
// there is a file then, and what it holds, must be seen from the file. One that stood there before
// is removed first, so that nothing old is ever taken for what has come; if it cannot be removed,
// nothing is fetched and the result is false.
//   keepCache  the system may give a copy that it has kept; otherwise that is dropped first.
bool DownloadURLToFile(const std::string& url, const std::string& path, bool keepCache);

// Whether something can be fetched from an address, found out by fetching it. An address with
// neither "@" nor ":" is taken in lower case and with "/" for "\"; one that does not begin with
// exactly "http://" gets that in front, "HTTP://x" included. A file that a failed call has left in
// the program folder stays there until the next call.
bool URLExists(const std::string& url);

// The user's public address, as the page at Addresses::AddressPage tells it; empty if the page
// could not be fetched. Fails as AddressPage::AddressIn does, and if what was fetched cannot be
// read.
std::string GetPublicIP();

// Whether the computer is online: whether GetPublicIP gives an address. Fails as that does.
bool IsInternetConnected();

}  // namespace Internet
