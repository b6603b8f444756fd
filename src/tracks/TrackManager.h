// The work on tracks behind the menus and the editor's windows: check a track file, choose a file
// for a new track, add parts to it, and write it.
#pragma once

#include <cstdint>
#include <string>

namespace TrackManager {

// Lets the user choose a track file of the game and shows what is wrong with it, if anything.
// Fails with RuntimeError if the game is not installed, or as the dialog does.
void CheckTrackMenu();

// Lets the user choose the file of a new track, which need not exist. Returns its full path, with
// the extension of tracks; empty if none is chosen, which the user is told, or if the user wants to
// keep a file of that name: none is replaced unasked.
// Fails as Application::GameFolder does.
std::string ChooseFileOfNewTrack();

// Appends a part: three lines with its curve code, its surface code and its length.
void AppendTrackPart(int32_t curve, int32_t surface, int32_t length, std::string& text);

// Appends the line of the end marker, and the weather without a line end.
void AppendTrackEnd(bool sunny, std::string& text);

// Creates or replaces a file that holds the text and one more line end.
// Fails as Platform::WriteWholeFile does.
void WriteTextFile(const std::string& path, const std::string& text);

// Asks for the weather, writes the track in work to its file and says so; no track is then in work.
// A track without parts is written too. Without a file, the user chooses one first; without a
// choice nothing changes.
// Returns true if the track was written. Fails as WriteTextFile does: the track in work is then as
// before.
bool SaveTrack();

}  // namespace TrackManager
