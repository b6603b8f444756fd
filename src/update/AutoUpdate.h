// The option that the pack looks for updates each time that it starts. It is kept in a file beside
// the program, as one character on a line: its code tells, chance the character, so that the file
// never shows the same word.
#pragma once

namespace Updater {

// Reads the option from the file, and keeps it for the run. Off if the file is missing, unreadable
// or empty.
bool ReadAutoUpdateSetting();

// The option as it is in this run; off until it has been read.
bool IsAutoUpdateOn();

// Tells the user that the option is now the other way, and makes it so, in the file too. Fails as
// Platform::WriteWholeFile does; the option is then as before, in the file and in this run.
void ToggleAutoUpdate();

}  // namespace Updater
