// The codes of a track file, and the names by which players know them.
#pragma once

#include <array>
#include <cstdint>

#include "tracks/TrackTexts.h"

namespace TrackFormat {

// The name of each curve and of each surface; its place is the code in the file.
inline constexpr std::array Curves{
    TrackTexts.Straight,      TrackTexts.EasyLeft,      TrackTexts.Left,
    TrackTexts.HardLeft,      TrackTexts.HairpinLeft,   TrackTexts.EasyRight,
    TrackTexts.Right,         TrackTexts.HardRight,     TrackTexts.HairpinRight,
    TrackTexts.StraightCrowd, TrackTexts.StraightOcean, TrackTexts.StraightRunway,
    TrackTexts.Clock};
inline constexpr std::array Surfaces{TrackTexts.Asphalt, TrackTexts.Gravel, TrackTexts.Water,
                                     TrackTexts.Sand};

// The least length of a part, in the game's units. There is no greatest one.
inline constexpr int32_t ShortestPart = 5000;

}  // namespace TrackFormat
