// The lookup behind every text that the user sees. Translations stand in the language file: the
// program folder, the executable's name, ".lng"; a console program says itself which one it reads.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/LangText.h"

// What every caller passes: ";" starts a comment, and what stands before it is trimmed.
inline constexpr int WithComments = -1;

// The text that the language file has for a key, or the default.
//   key      compared with its letter case; it must start its line, with "=" directly behind it.
//   english  returned as it stands if the file has no line for the key. It is then also appended to
//            the file as it stands, so that running the program completes the file for translators.
//   flag     WithComments, or any other value to take every line as it is.
// If several lines have the key, the last one counts. "{sc}", in its four spellings that differ in
// letter case, becomes ";" in a text from the file. Never fails: where the file cannot be read or
// written, or has more than eight megabytes, the default is returned. Nothing is appended to a file
// that is there but cannot be read; an entry that could not be appended is tried again at the key's
// next lookup.
//
// The file is read again only when its size or last-write time has changed since the last lookup.
std::string GetLangString(const std::string& key, const std::string& english, int flag);

// The text of a table, as all callers look it up. A text without a key is the same in every
// language and is given as it stands.
std::string GetLangString(const LangText& text);

// A larger language file is not used: it has hundreds of times the size of any translation.
inline constexpr uint64_t LargestLanguageFile = 8 << 20;

// What counts of a line of a language file where ";" starts a comment. Lines without one stay as
// they are, blanks included.
std::string_view LineWithoutComment(std::string_view line);

// From now on, in this run, texts come from that language file, or with an empty path are the
// English defaults. Nothing is ever appended.
void SpeakOnlyFrom(const std::string& path);
