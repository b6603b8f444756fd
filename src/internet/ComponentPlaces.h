// The kinds of add-ons, and where those of each kind lie on the maker's server: what the pack and
// whoever publishes for it must know alike.
#pragma once

#include <string>
#include <string_view>

namespace ComponentPlaces {

// Counted from 0, as the rows of the list in which the user chooses one: Car, Track, Language.
inline constexpr int Count = 3;
inline constexpr int Car = 0;
inline constexpr int Track = 1;
inline constexpr int Language = 2;
inline bool IsKind(int kind) {
  return kind >= 0 && kind < Count;
}

// In all that follows the kind must be one.

// The name of the folder of the kind's archives, such as "cars".
std::string FolderNameOf(int kind);

// The path of the list of the kind's add-ons on the server, from its first "/" on.
std::string ListPathOf(int kind);
// The path of the archive of that file name.
std::string ArchivePathOf(int kind, const std::string& fileName);

// True if an archive of that name may be installed: a plain file name that leaves something before
// its last four characters, meant to be ".zip", and for a language a name of a folder. Names come
// from a list on the web and are never trusted as paths.
bool IsInstallable(int kind, std::string_view fileName);

// What is left before those four characters: for a language the name of its folder in the game.
//   fileName  must be installable.
std::string_view WithoutExtension(std::string_view fileName);

}  // namespace ComponentPlaces
