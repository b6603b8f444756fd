// The installed game, as its installer registered it.
#pragma once

#include <string>

namespace Application {

// The folder of the game, without a backslash at its end; paths in it begin with "\". It is read
// from the registry at each call. The last character of the registered location is dropped whatever
// it is: the game's installer always ends it in a backslash.
// Fails with RuntimeError InvalidCall, cause GameNotInstalled, if the game is not installed.
std::string GameFolder();

// Where the game keeps its vehicles and its tracks. They fail as GameFolder does.
std::string VehicleFolder();
std::string TrackFolder();

// The game's publisher, version and contact address; empty if the game is not installed.
std::string GamePublisher();
std::string GameVersion();
std::string GameContact();

}  // namespace Application
