// What shall be made: a vehicle or a track (Ctrl+N in the main window).
#pragma once

#include "app/Chooser.h"

class NewWhat final : public Chooser {
 public:
  NewWhat();
};
