// What the tests and the menu reader inside the tested program have agreed on.
#pragma once

namespace MenuReader {

// The message that makes the reader write down the menu bar of the window that it is sent to.
inline constexpr const char* Message = "SK2PackE2eReadMenu";
// The shared memory that it writes to: a line for each item, top to bottom, ended by "\n" and the
// whole by a NUL. A line holds the depth, the state flags and the caption, separated by "\x1f".
inline constexpr const char* Memory = "SK2PackE2eMenu";
inline constexpr unsigned MemorySize = 65536;
inline constexpr char Separator = '\x1f';

}  // namespace MenuReader
