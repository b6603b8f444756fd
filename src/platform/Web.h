// Downloads, through the system's own way of fetching web pages: its proxies, its encryption and
// its cache.
#pragma once

#include <cstdint>
#include <string>

namespace Platform {

// Fetches what an address stands for into a file, in place of one that is there, and waits until
// that is done. It is a long step: a server may take as long as the system lets it, and the system
// may handle events meanwhile, which then begin nothing.
//   url   as the system takes it, with its scheme, such as "http://".
//   path  full path of a file in a folder that is there.
// Returns the system's own result: 0 if it calls the download a success, negative for most
// failures. Neither says all. A page with the words "not found", or a file that was cut off half
// way, may count as a success; a success may come without a file, and a failure with a part of one.
// Fails with RuntimeError DeviceError only where the system lacks its downloading.
int32_t DownloadToFile(const std::string& url, const std::string& path);

// Lets the system forget the copy that it has kept of an address, if it has one, so that the next
// download fetches it anew. Fails with RuntimeError DeviceError only where the system lacks its
// downloading.
void DropFromWebCache(const std::string& url);

}  // namespace Platform
