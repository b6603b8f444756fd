// What the pack says of each kind of add-ons, and where those of a kind lie, on the maker's server
// and in the game. In all of it the kind must be one (ComponentPlaces.h).
#pragma once

#include <string>

#include "internet/InternetTexts.h"

namespace Components {

// The kind's name, the same in every language.
const LangText& NameOf(int kind);

// What is told, and under which title, when the kind's list cannot be understood.
const LangText& ListErrorTextOf(int kind);
const LangText& ListErrorTitleOf(int kind);

// The address of the list of the kind's add-ons.
std::string ListUrlOf(int kind);
// The address of the archive of that file name.
std::string ArchiveUrlOf(int kind, const std::string& fileName);

// The folder into which the archive is unpacked; it need not be there yet. A language gets one of
// its own, named as its archive. Fails as Application::GameFolder does.
//   fileName  must be installable.
std::string TargetFolderOf(int kind, const std::string& fileName);

}  // namespace Components
