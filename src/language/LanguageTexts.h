// The texts of the language changer.
#pragma once

#include "base/LangText.h"

struct LanguageTextTable {
  LangText LanguageChangerTitle{"LanguageChangerTitle", "Change current language"};
  LangText LanguageChangerText{"LanguageChangerText", "Select Language:"};
  LangText NoLangsText{"NoLangsText", "No languages are currently installed on Skidrun2."};
  LangText NoLangsTitle{"NoLangsTitle", "Language detection error"};
  LangText LangChangedText{"LangChangedText", "The language has been saved."};
  LangText LangChangedTitle{"LangChangedTitle", "Language changed"};
};
inline constexpr LanguageTextTable LanguageTexts;
