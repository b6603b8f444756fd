#include "app/Program.h"

namespace Program {

namespace {

std::string Numbers(const Platform::ProgramVersion& version) {
  std::string numbers = std::to_string(version.major) + "." + std::to_string(version.minor);
  // A revision of zero is nothing to tell apart: "V1.0", not "V1.0.0".
  if (version.revision != 0) numbers += "." + std::to_string(version.revision);
  return numbers;
}

}  // namespace

ReleaseStatus StatusOf(const Platform::ProgramVersion& version) {
  // The numbers alone tell: 0.0.x are alphas, 0.x betas.
  if (version.major != 0) return ReleaseStatus::Release;
  return version.minor == 0 ? ReleaseStatus::Alpha : ReleaseStatus::Beta;
}

std::string VersionSuffix(const Platform::ProgramVersion& version) {
  switch (StatusOf(version)) {
    // Of an alpha the other two numbers are zero, and say nothing.
    case ReleaseStatus::Alpha: return " Alpha" + std::to_string(version.revision);
    case ReleaseStatus::Beta: return " Beta V" + Numbers(version);
    case ReleaseStatus::Release: break;
  }
  return " V" + Numbers(version);
}

std::string Title(const Platform::ProgramVersion& version) {
  std::string title = Name + VersionSuffix(version);
  // The version resource has no place for a release candidate but its description in words.
  const size_t tag = version.fileDescription.find("RC");
  if (StatusOf(version) == ReleaseStatus::Release && tag != std::string::npos) {
    title += version.fileDescription.substr(tag);
  }
  return title;
}

}  // namespace Program
