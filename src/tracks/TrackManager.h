// The actions on tracks that menus and choosers run, and what the track editor does: start a track,
// add parts to it, and write it as a track file.
#pragma once

#include <cstdint>
#include <string>

namespace TrackManager {

// Lets the user choose a track file of the game and shows what is wrong with it, if anything.
// Fails with RuntimeError if the game is not installed, or as the dialog does.
void CheckTrackMenu();

// Starts a track: the user chooses its file, and the editor's window is shown in place of the one
// in use. Parts that were built but not saved are kept and will go into the chosen file. If no file
// is chosen, the user is told and nothing changes. No file is replaced unasked: if the user wants
// to keep one, nothing changes either.
// Fails as Application::GameFolder does.
void NewTrack();

// Appends a part: three lines with its curve code, its surface code and its length.
void AppendTrackPart(int32_t curve, int32_t surface, int32_t length, std::string& text);

// Appends the line of the end marker, and the weather without a line end.
void AppendTrackEnd(bool sunny, std::string& text);

// Creates or replaces a file that holds the text and one more line end.
// Fails as Platform::WriteWholeFile does.
void WriteTextFile(const std::string& path, const std::string& text);

// Asks for the weather, writes the track in work to its file, says so, and goes back to the main
// window; no track is then in work. A track without parts is written too.
// Without a file, the user chooses one first, as for NewTrack; without a choice nothing changes.
// Fails as WriteTextFile does: the track in work and its window are then as before.
void SaveTrack();

}  // namespace TrackManager
