// The sound of a horn that is held.
#pragma once

#include "Vehicle.h"

// One second, which can be looped and begins where it is quiet.
Samples SoundOf(const Horn& horn);
