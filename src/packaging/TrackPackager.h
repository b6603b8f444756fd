// The track packager: a track and its spoken description become one archive beside them.
#pragma once

#include "packaging/Description.h"

namespace TrackPackager {

// Packages a track. Without a description, which is a wave file of the track's name, TrkWavOptions
// takes the place of the window in use, and goes on when there is one.
//   descriptionReady  false: from the beginning. The user chooses the track; its path becomes that
//                     of the track in work, in lower case.
//                     true: the description of the track in work stands in its place, and packing
//                     follows at once.
// When it is done there is no track in work, since its file is in the archive: a track whose parts
// wait in the editor gets a file of its own.
// Fails with FileNotFound if the chosen track is not there, and as Package::PackAndDelete does.
void PackageTrack(bool descriptionReady);

// Makes a wave file that the user chooses the description of the track in work, in place of the one
// that may be there, and packages the track. Fails as CopyFileTo and PackageTrack do.
void OpenExistingTrackSound();

// The description of the track in work, for the recorder; without a path if there is no such track,
// or if it has no file yet.
Description TrackDescription();

}  // namespace TrackPackager
