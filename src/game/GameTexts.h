// The texts about the installed game.
#pragma once

#include "base/LangText.h"

struct GameTextTable {
  // Why most tools cannot work.
  LangText GameNotInstalled{
      "RTEGameNotInstalled",
      "Skidrun2 was not found on this computer. Please install the game and try again."};
};
inline constexpr GameTextTable GameTexts;
