// How a failure reads in the user's language.
#pragma once

#include <exception>
#include <string>

namespace Platform {
struct SaveNote;
}

// What the user is told about a failure: the cause in their language, the file and the copy of it,
// if there are any, and as the last line what the system said: what was being done and its own
// code.
std::string FailureText(const std::exception& error);
// The same with a file that the failure itself may not name.
std::string FailureText(const std::exception& error, const std::string& file);

// What the user is told about a save that was cut off in an earlier run.
std::string SaveNoteText(const Platform::SaveNote& note);
