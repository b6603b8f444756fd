// A run of sk2check, from its arguments to its exit status.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace Tools {

enum CheckStatus { Clean = 0, Faulty = 1, NotLooked = 2 };

// Judges what the arguments name, and tells it.
//   arguments  in the system code page, without the program's own name.
//   out        takes what was found, in UTF-8; notes what stands on standard error.
//   version    of the program.
// Returns the exit status. Never fails, whatever the arguments, the files and the disk are. It ends
// the texts of a language file for this run: they come from the one that the arguments name.
int RunCheck(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& notes,
             const std::string& version);

}  // namespace Tools
