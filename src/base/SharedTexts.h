// Texts that more than one subsystem shows under the same key.
#pragma once

#include "base/LangText.h"

struct SharedTextTable {
  LangText OKButton{"OKButton", "OK"};
  LangText CclButton{"CclButton", "Cancel"};
  LangText SelectButton{"SelectButton", "&Select"};
  LangText Error{"Error", "Error"};
  LangText Line{"Line", "Line"};
  LangText SyntaxError{"SyntaxError", "Syntax Error"};
  LangText And{"And", "and"};
  LangText Or{"Or", "or"};
};
inline constexpr SharedTextTable SharedTexts;
