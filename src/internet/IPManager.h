// The player's own list of servers, "iplist.dat" in the program folder, and the server that the
// game uses. Its lines: internet/ServerLines.h.
//
// A file of more than a megabyte, many thousands of servers, is no list: it counts as one that
// cannot be read.
#pragma once

#include <string>
#include <vector>

namespace IPManager {

// The list as the user sees it, in the order of the file. Empty if there is no file, or it cannot
// be read: the user begins with an empty list then, and is not told.
std::vector<std::string> IPListRows();

// True if a line of the list has the address. False if there is no file, or it cannot be read.
bool IPExists(const std::string& address);

// Adds a server at the end of the list, making the file if there is none. Nothing is asked of the
// name and of the address. Fails as Platform::AppendToFile does; the list is then as it was.
void AddIPEntry(const std::string& name, const std::string& address);

// What came of a deletion. The numbers are those that it has always had.
enum Deletion {
  Deleted = 0,
  NotInList = 1,          // or the list cannot be read
  ListNotAccessible = 2,  // the file is gone, write-protected or a folder; the disk full, not ready
  OtherFailure = 3,       // any other
};

// Takes all lines with an address out of the list. The only address of a list cannot be deleted:
// that is an OtherFailure, as it always has been. Never throws; whatever fails, the list is as it
// was.
Deletion DeleteIPEntry(const std::string& address);

// Empties the list. Fails as Platform::WriteWholeFile does; the list is then as it was.
void ClearIPList();

// Makes an address the server that the game uses. Fails as Configuration::Save does, also if the
// game has no configuration yet, or an empty one.
void SetMultiplayerServer(const std::string& address);

}  // namespace IPManager
