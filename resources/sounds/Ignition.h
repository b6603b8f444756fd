// The sound of an engine that is started.
#pragma once

#include "Engine.h"

// The starter engages, turns the engine against its compression, the first cylinders fire, the
// engine speeds up and settles. At its end the engine runs as the loop does at its end, so that the
// loop can follow without a joint. Fails with std::bad_optional_access if the vehicle has no such
// sound.
Samples IgnitionOf(const Vehicle& vehicle, const EngineLoop& idle);
