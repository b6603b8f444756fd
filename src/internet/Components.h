// The kinds of add-ons that the maker's server has, and where those of each kind lie, there and in
// the game.
#pragma once

#include <string>
#include <string_view>

#include "internet/InternetTexts.h"

namespace Components {

// Counted from 0, as the rows of the list in which the user chooses one: Car, Track, Language.
inline constexpr int Count = 3;
inline bool IsKind(int kind) {
  return kind >= 0 && kind < Count;
}

// In all that follows the kind must be one.

// The kind's name, the same in every language.
const LangText& NameOf(int kind);

// What is told, and under which title, when the kind's list cannot be understood.
const LangText& ListErrorTextOf(int kind);
const LangText& ListErrorTitleOf(int kind);

// The address of the list of the kind's add-ons.
std::string ListUrlOf(int kind);
// The address of the archive of that file name.
std::string ArchiveUrlOf(int kind, const std::string& fileName);

// True if an archive of that name may be installed: a plain file name that leaves something before
// its last four characters, meant to be ".zip", and for a language a name of a folder. Names come
// from a list on the web and are never trusted as paths.
bool IsInstallable(int kind, std::string_view fileName);

// The folder into which the archive is unpacked; it need not be there yet. A language gets one of
// its own, named as its archive. Fails as Application::GameFolder does.
//   fileName  must be installable.
std::string TargetFolderOf(int kind, const std::string& fileName);

}  // namespace Components
