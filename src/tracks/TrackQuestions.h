// The questions that several actions on tracks ask.
#pragma once

#include <string>

#include "base/LangText.h"
#include "platform/FileDialog.h"

namespace TrackQuestions {

// Lets the user choose a track file, starting in the game's folder of tracks. Returns its full
// path. If none is chosen, tells the user with the given text and title, and returns an empty text.
// Fails as Application::GameFolder and the dialog do.
std::string ChooseTrackFile(Platform::FileDialog& dialog, const LangText& noFileText,
                            const LangText& noFileTitle);

// The same for a track file to write: ".trk" is appended to its name unless it ends so in any
// letter case.
std::string ChooseTrackFileToWrite(const LangText& noFileText, const LangText& noFileTitle);

// Asks whether the sun shall shine on the track; otherwise it rains.
bool AskForSun();

}  // namespace TrackQuestions
