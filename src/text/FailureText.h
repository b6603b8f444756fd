// How a failure reads in the user's language.
#pragma once

#include <string>

#include "base/LangText.h"

// What the user is told about a failure: the cause in their language and the file, if there is one.
std::string FailureText(const LangText& cause, const std::string& file);
