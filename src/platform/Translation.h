// Where windows and boxes get their texts from. The string table stands above the platform, so the
// program hands it down once at its start.
#pragma once

#include <functional>
#include <string>

#include "base/LangText.h"

namespace Platform {

// Sets how texts are looked up in this run. Without a translator every text is its English default.
void SetTranslator(std::function<std::string(const LangText&)> translator);

// The text in the user's language, "&" marks included. A text without a key is the same in every
// language.
std::string Translate(const LangText& text);

}  // namespace Platform
