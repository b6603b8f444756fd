// What shall be checked: a vehicle, a track or the records (Ctrl+C in the main window).
#pragma once

#include "app/Chooser.h"

class CheckWhat final : public Chooser {
 public:
  CheckWhat();
};
