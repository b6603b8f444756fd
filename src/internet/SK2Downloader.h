// What the package downloader does on the server and in the game, without its windows. Kinds are
// those of Components.h.
#pragma once

#include <optional>
#include <string>

namespace SK2Downloader {

// What came of reading a list file.
struct ComponentList {
  std::string records;    // as ComponentRecords has them; empty on an error
  int errorCode = 0;      // 1: there is no list that can be read; 2: a line of it is no record
  std::string errorText;  // what is told of the error
};

// Reads a list of add-ons.
ComponentList ReadComponentList(const std::string& path);

// Fetches the list of a kind, and reads it. Nothing if that fails: the user has then been told.
//   kind  must be one.
std::optional<std::string> FetchComponentList(int kind);

// The file name of the archive that belongs to a display name, as the server has it now; empty if
// it has none of that name. A name that is nowhere in the list of its kind is looked for in the
// lists of the kinds behind it, which has always been so. Nothing if a list cannot be had: the user
// has then been told.
std::optional<std::string> FindComponentFileName(const std::string& displayName, int kind);

// Fetches an archive. False if it cannot be had.
//   path  where it is stored.
bool FetchArchive(int kind, const std::string& fileName, const std::string& path);

}  // namespace SK2Downloader
