// The game's configuration file, "Skidrun.cfg" in the game folder.
#pragma once

#include <string>

namespace Configuration {

// The path of the file. Fails as Application::GameFolder does.
std::string Path();

// What a tool does where the configuration is missing or empty.
enum class IfMissing {
  Make,  // it is made, with the one setting
  Fail,  // the failure is passed on: the game has never run, and would not find the rest
};

// Gives a setting of the game another value, as WithSetting of ConfigurationText.h works it out.
// The game keeps the file hidden, and a player may have protected it: it is rewritten all the same,
// and is hidden and nothing else afterwards. Fails as Path does, with FileNotFound as IfMissing
// says, and as Platform::WriteWholeFile does: the configuration is then as before, its attributes
// included. Only where it could be written but not be hidden does it hold the new value already.
void Save(const std::string& name, const std::string& value, IfMissing ifMissing);

}  // namespace Configuration
