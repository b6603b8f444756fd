// The questions that several actions on tracks ask.
#pragma once

#include <string>

#include "base/LangText.h"
#include "ui/FileDialog.h"

namespace TrackQuestions {

// Lets the user choose a track file, starting in the game's folder of tracks. Returns its full
// path as it was chosen. If none is chosen, tells the user with the given text and title, and
// returns an empty text. Fails as Application::GameFolder and the dialog do.
std::string ChooseTrackFile(const Platform::FileDialog& dialog, const LangText& noFileText,
                            const LangText& noFileTitle);

// A path with ".trk" appended, unless it ends so in any letter case.
std::string WithTrackExtension(const std::string& path);

// Whether a track may be written to the path: MayBeWritten of game/FileChoice.h, about tracks.
bool MayBeWritten(const std::string& path, const std::string& chosen);

// Asks whether the sun shall shine on the track; otherwise it rains.
bool AskForSun();

}  // namespace TrackQuestions
