// The game's record file, "highscore.cfg" in the game folder: the best time of each track, one
// record "TrackName=TimeInMS" a line.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace RecordFile {

// The path of the record file. Fails as Application::GameFolder does.
std::string Path();

// The records in file order: the lines without the blanks at their ends, blank lines left out.
// Lines without "=" are records too. None if there is no record file.
// Fails as Path and Platform::ReadWholeFile do.
std::vector<std::string> Read();

// Replaces the contents of the record file. Each line ends in CR LF, the last one included; no
// records make an empty file. Fails as Path and Platform::WriteWholeFile do; the file is then as
// it was.
void Write(const std::vector<std::string>& records);

// The name of a record's track: what stands before the first "=". Nothing if there is no "=".
std::optional<std::string> TrackOf(const std::string& record);

// The time of a record in words: the number behind the first "=", as whole milliseconds. Empty if
// there is no number, or one beyond 32 bits: such a record stays in the list, and can be deleted.
std::string TimeTextOf(const std::string& record);

}  // namespace RecordFile
