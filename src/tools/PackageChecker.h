// Finds the faults in an archive of a vehicle or a track.
#pragma once

#include <functional>
#include <string>

#include "base/Fault.h"

// What the checker finds, beside the faults of the vehicle or the track.
namespace PackageFault {
inline constexpr int32_t Refused = 101;  // the pack would not unpack it
inline constexpr int32_t Nothing = 102;  // no vehicle and no track in it
inline constexpr int32_t Several = 103;  // more than one
}  // namespace PackageFault

// As FaultTaker, with the path of the faulty file within the archive; empty for the archive itself.
using PackageFaultTaker = std::function<bool(const std::string& entry, const Fault& fault)>;

// Judges an archive as the pack would before it unpacks it: whether it is safe and whole. Tells the
// one fault that it may have, with the pack's own words. Fails where the archive cannot be read.
void FindArchiveFault(const std::string& path, const PackageFaultTaker& take);

// The same, and tells each fault of what the archive holds, until the taker wants no more: it must
// hold exactly one vehicle or track, which has no fault and all the sounds that it names. The
// sounds are looked for in the archive alone, in the folder of the vehicle. Nothing is unpacked to
// a disk, and it takes a bounded amount of memory.
void FindPackageFaults(const std::string& path, const PackageFaultTaker& take);
