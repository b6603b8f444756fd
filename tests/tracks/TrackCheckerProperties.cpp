// The track checker beside a second one that was written for plainness alone.
#include "tests/VerdictProperty.h"
#include "tests/tracks/RandomTrack.h"
#include "tests/tracks/ReferenceTrackChecker.h"
#include "tracks/TrackChecker.h"

namespace {

const VerdictProperty Property{.path = "C:\\Games\\Skidrun2\\tracks\\hill.trk",
                               .makeFile = RandomFiles::Track,
                               .check = CheckTrackFile,
                               .reference = Reference::CheckTrack,
                               .firstCode = -5,
                               .lastCode = 4};

TEST(TrackCheckerProperty, FindsInRandomFilesWhatAPlainCheckerFinds) {
  Simulated::Machine machine;
  ExpectTheVerdictsOfThePlainChecker(machine, RandomText(4), Property);
}

TEST(TrackCheckerProperty, FindsInLongLinesWhatAPlainCheckerFinds) {
  Simulated::Machine machine;
  ExpectTheVerdictsOnLongLines(machine, RandomText(14), Property);
}

}  // namespace
