// How the user is told what a file checker found.
#pragma once

#include <cstdint>
#include <string>

#include "base/LangText.h"

namespace CheckReport {

// The titles of the boxes that differ from checker to checker.
struct Titles {
  LangText fileOk;
  LangText syntaxError;
};

// Shows the box for what a checker returned.
//   result   0: an information box; -1, the file could not be read: a critical one; otherwise the
//            number of the faulty line, shown by ShowFault.
//   message  the checker's, in the user's language.
void Show(int32_t result, const std::string& message, const Titles& titles);

// Shows a critical box with "Line", the number of the faulty line and the checker's message.
void ShowFault(int64_t line, const std::string& message, const LangText& title);

}  // namespace CheckReport
