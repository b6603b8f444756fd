// What shall be packaged: a vehicle or a track (Ctrl+P in the main window).
#pragma once

#include "app/Chooser.h"

class PackageWhat final : public Chooser {
 public:
  PackageWhat();
};
