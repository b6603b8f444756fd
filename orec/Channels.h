// From as many channels as the device has to as many as are wanted.
#pragma once

#include <string>
#include <string_view>

namespace ORec {

// The same sound with another number of channels: both are given what one has heard, or one the
// middle between both. The rest of a frame is left out.
//   from, to  1 or 2.
std::string WithChannels(std::string_view samples, int from, int to);

}  // namespace ORec
