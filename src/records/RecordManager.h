// The actions on the game's records that the menus and choosers run.
#pragma once

namespace RecordManager {

// Checks the game's record file and tells the user what was found, over the window in use.
// Fails as RecordFile::Path does.
void CheckRecordsMenu();

}  // namespace RecordManager
