// Makes whole tracks by chance.
#pragma once

#include <cstdint>

#include "platform/Files.h"

namespace RandomTrackmaker {

// Asks for a file, whether it is a street adventure, the number of parts and the weather, and
// writes such a track. Without a file or a number the user is told and nothing is written. No file
// is replaced unasked: if the user wants to keep one, nothing is written either.
// Fails as Application::GameFolder and Platform::FileWriter do, and with RuntimeError Overflow for
// a number of parts beyond 32 bits. What stood under the track's name is then still there.
void RandomTrack();

// Writes parts that are drawn independently of each other, in bounded memory. None if the number
// is not above 0. Fails as FileWriter::Write does.
void WriteRandomParts(int32_t count, Platform::FileWriter& file);

}  // namespace RandomTrackmaker
