// The kinds of files that an author makes.
#pragma once

#include <optional>
#include <string>
#include <string_view>

enum class FileKind {
  Vehicle,   // .vhc
  Track,     // .trk
  Records,   // highscore.cfg
  Language,  // .lng
  Package,   // .zip with one vehicle or one track
  Archive,   // .zip with anything that can be unpacked safely; never told by a name
};

// The kind that a file's name tells, whatever its letter case.
std::optional<FileKind> KindOf(const std::string& path);

// What a kind is called where the user tells it, and in reports: "vehicle", "track", "records",
// "language", "package", "archive".
const char* NameOf(FileKind kind);
std::optional<FileKind> KindNamed(std::string_view name);
