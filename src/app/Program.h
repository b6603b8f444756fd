// The pack itself: its version and its title.
#pragma once

#include <string>

#include "platform/Executable.h"

namespace Program {

enum class ReleaseStatus { Alpha = -1, Release = 0, Beta = 1 };

inline constexpr const char* Name = "Skidrun2 Utility Pack";

// Alpha below version 0.1, beta below version 1, a release from there on.
ReleaseStatus StatusOf(const Platform::ProgramVersion& version);

// What follows the product's name: " V1.2.3" (the revision only when it is not 0) for a release,
// " Beta V0.5.2" for a beta, " Alpha7" (the revision alone) for an alpha.
std::string VersionSuffix(const Platform::ProgramVersion& version);

// The main window's title: the pack's name and the version suffix, and for a release the release
// candidate tag, from "RC" to the end of the executable's file description, if it has one.
std::string Title(const Platform::ProgramVersion& version);

}  // namespace Program
