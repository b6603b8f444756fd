// The lines of a vehicle while it is being made: one "variable=value" for each of the fourteen
// variables, in their order, with CR LF between them.
#pragma once

#include <string>

#include "vehicles/VehicleVariables.h"

namespace VehicleLines {

// The lines of a vehicle in which no variable has a value.
std::string OfNewVehicle();

// The lines with another value for a variable, as it stands: every line that begins with the
// variable and "=" is replaced.
std::string WithValue(const std::string& lines, VehicleVariable variable, const std::string& value);

// What stands behind "variable="; empty if there is no such line.
std::string ValueOf(const std::string& lines, VehicleVariable variable);

// What goes into the vehicle file: the lines of the variables that have a value, each ended by CR
// LF. A line that ends in "=" counts as one without a value. Empty if no variable has one.
std::string ForFile(const std::string& lines);

}  // namespace VehicleLines
