// Finds the faults in a language file of the pack.
#pragma once

#include <string>

#include "base/Fault.h"

// What the checker finds.
namespace LanguageFault {
inline constexpr int32_t NoText = 1;      // neither "key=text" nor a comment
inline constexpr int32_t UnknownKey = 2;  // no text of the pack has it
inline constexpr int32_t TooLarge = 3;    // for the pack to use it
}  // namespace LanguageFault

// Tells each line of a language file that the pack would pass over, until the taker wants no more.
// Lines end at CR, LF or CR LF. A key that is missing is no fault, as the pack speaks English then
// and adds it; nor is one that stands there twice, as the last counts.
// Fails as ReadWholeFile does; with FileNotFound if there is no such file.
void FindLanguageFaults(const std::string& path, const FaultTaker& take);
