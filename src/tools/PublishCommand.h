// The command line of sk2publish.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace PublishCommand {

// What a program that calls it is told of how it went.
inline constexpr int Done = 0;     // published, or nothing had changed
inline constexpr int Refused = 1;  // something in the folder is at fault; all of it has been told
inline constexpr int Failed = 2;   // it could not be looked at or written, or was called wrongly

// Does what the arguments say and returns one of those. Never throws.
//   arguments  without the program's name, in the system code page.
//   version    the program's, as "--version" tells it.
//   out        what was done, one line each, in UTF-8.
//   errors     each fault as "file: reason", or the failure.
int Run(const std::vector<std::string>& arguments, const std::string& version, std::ostream& out,
        std::ostream& errors);

}  // namespace PublishCommand
