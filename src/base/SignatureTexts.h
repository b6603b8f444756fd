// What is said of signatures that could not be judged.
#pragma once

#include "base/LangText.h"

struct SignatureTextTable {
  // What was being done, in the last line of a failure: "Checking a signature: system error 5".
  LangText CheckingSignature{"CheckingSignature", "Checking a signature"};
};
inline constexpr SignatureTextTable SignatureTexts;
