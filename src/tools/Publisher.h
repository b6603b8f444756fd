// Publishes a maker's folder: judges all that is in it, and serves it if nothing is at fault.
#pragma once

#include <string>

#include "tools/Catalogue.h"

namespace Publisher {

enum class Outcome {
  Published,  // a new state is served
  Unchanged,  // what is served is what would be: nothing was written
  Refused,    // for the faults; what is served is what was served before
};

struct Report {
  Outcome outcome = Outcome::Refused;
  Catalogue::Faults faults;  // all that there are
  Catalogue::Contents contents;
};

// Publishes a folder (Catalogue.h) to a site, a folder in which Platform::ServedFolder is what a
// web server serves. It is made if it is not there. Neither may lie in the other.
//
// All or nothing: whatever fails, and wherever the program is ended, the state that was served is
// served, or the new one, whole. What an ended run has left is removed by the next.
//
// Fails as Catalogue::Read and SiteState::Serve do; with RuntimeError InvalidCall where one of the
// folders lies in the other.
Report Publish(const std::string& folder, const std::string& site);

}  // namespace Publisher
