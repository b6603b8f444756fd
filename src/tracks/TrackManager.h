// The actions on tracks that the menus and choosers run.
#pragma once

namespace TrackManager {

// Lets the user choose a track file of the game and shows what is wrong with it, if anything.
// Fails with RuntimeError if the game is not installed, or as the dialog does.
void CheckTrackMenu();

}  // namespace TrackManager
