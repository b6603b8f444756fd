// Lap and race times, as the player reads them.
#pragma once

#include <cstdint>
#include <string>

enum class TimeForm {
  Words,   // "1 minute, 12.345 seconds", the only form that the pack shows
  Colons,  // "0:1:12.345"
};

// A time as text. How it divides into hours, minutes and seconds: records/TimeParts.h.
//   milliseconds   any value.
// Words are in the user's language. Hours and minutes below 1 and seconds below 1 are left out: 500
// gives an empty text, and a text of whole hours or minutes ends in ", ". With colons all three are
// there, whatever they are. The decimal mark is "." in every locale, with as many digits behind it
// as are needed.
std::string TimeConverter(int32_t milliseconds, TimeForm form);
