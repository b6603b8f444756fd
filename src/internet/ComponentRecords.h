// The lists of add-ons on the maker's server: records "display name:file name" with line feeds
// between them, and perhaps carriage returns before those. No file is touched here.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace ComponentRecords {

// A list as it is worked on: its lines, each with CR LF behind it.
struct Lines {
  std::string text;    // empty if a line is no record
  size_t badLine = 0;  // the first line without ":", counted from 1; 0 if there is none
};

// Takes the lines of a list file. A line ends at CR or CR LF; a lone line feed does not end one, so
// a list with line feeds alone is one line, and is only no list if it has no ":" at all.
Lines LinesIn(std::string_view file);

// The display names in the text of a list, in their order: what stands before the first ":" of each
// record. A piece without ":" has none, such as the one behind the last line feed.
std::vector<std::string> DisplayNames(std::string_view text);

// The file name that belongs to a display name in the text of a list; empty if there is none. Of
// all records that begin with the name, letter case minded, the last counts: so a name that is the
// beginning of a later one gets the file of that. It has always been so, and lists are made
// accordingly. A carriage return at the end of a record stays.
std::string FileNameOf(std::string_view text, std::string_view displayName);

// One add-on of a list that is being made.
struct Record {
  std::string displayName;
  std::string fileName;
};

// True if a text may stand on either side of a record: not empty, without ":" and line ends.
bool MayBePart(std::string_view text);

// The text of a list file: the records in their order, each with a line feed behind it. Behind the
// last one too, or the carriage return that LinesIn puts there would become part of its file name.
// The parts of all records must be such as MayBePart has them.
std::string ListOf(const std::vector<Record>& records);

}  // namespace ComponentRecords
