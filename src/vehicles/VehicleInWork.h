// The vehicle that the user is making. It lives for the whole run, whatever windows come and go.
#pragma once

#include <string>

#include "base/PerRun.h"
#include "platform/Paths.h"

struct VehicleInWork {
  // The full path of the vehicle file; empty while no vehicle is being made.
  std::string VehicleFilePath;
  // The fourteen lines of the file to be, as VehicleLines makes them; empty while none is made.
  std::string VehicleData;

  // Where the vehicle's sounds lie beside its file.
  std::string VehicleFolder() const { return Platform::FolderOf(VehicleFilePath); }
};

// The run's vehicle.
inline VehicleInWork& TheVehicle() {
  return PerRun<VehicleInWork>();
}
