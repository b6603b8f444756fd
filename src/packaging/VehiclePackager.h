// The vehicle packager: a vehicle, its spoken description and its own sounds become one archive
// beside them.
#pragma once

namespace VehiclePackager {

// Packages a vehicle. Without a description, which is a wave file of the vehicle's name,
// VhcWavOptions takes the place of the window in use, and goes on when there is one.
//   descriptionReady  false: from the beginning. The user chooses the vehicle; its path is kept in
//                     lower case.
//                     true: the description of that vehicle stands in its place, and packing
//                     follows at once.
// A sound that is not there is told, and nothing is packed or deleted.
// Fails with FileNotFound if the chosen vehicle is not there, and as VehicleSounds::FilesOf and
// Package::PackAndDelete do.
void PackageVehicle(bool descriptionReady);

// Makes a wave file that the user chooses the description of the vehicle, unless one has come into
// that place meanwhile, and packages the vehicle. Fails as CopyFileTo and PackageVehicle do.
void OpenExistingVehicleSound();

}  // namespace VehiclePackager
