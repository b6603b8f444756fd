// The file that translators start from.
#pragma once

#include <string>
#include <vector>

#include "base/LangText.h"

// Every text of the pack, table by table, those without a key among them.
std::vector<LangText> AllTexts();

// A language file with every key once and its English default, in the order of AllTexts: the file
// that the running program would make of an empty one by looking all texts up in that order.
std::string LanguageTemplate();
