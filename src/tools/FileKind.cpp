#include "tools/FileKind.h"

#include "base/Text.h"
#include "platform/Paths.h"

namespace {

struct Kind {
  FileKind kind;
  const char* name;
  const char* extension;  // null where the name tells nothing
};
constexpr Kind Kinds[] = {
    {FileKind::Vehicle, "vehicle", ".vhc"},  {FileKind::Track, "track", ".trk"},
    {FileKind::Records, "records", nullptr}, {FileKind::Language, "language", ".lng"},
    {FileKind::Package, "package", ".zip"},  {FileKind::Archive, "archive", nullptr},
};

}  // namespace

std::optional<FileKind> KindOf(const std::string& path) {
  // The game has one record file; its other .cfg files are none.
  if (Text::LowerAscii(Platform::NameOf(path)) == "highscore.cfg") return FileKind::Records;
  for (const Kind& each : Kinds) {
    if (each.extension && Platform::HasExtension(path, each.extension)) return each.kind;
  }
  return std::nullopt;
}

const char* NameOf(FileKind kind) {
  for (const Kind& each : Kinds) {
    if (each.kind == kind) return each.name;
  }
  return "";
}

std::optional<FileKind> KindNamed(std::string_view name) {
  for (const Kind& each : Kinds) {
    if (each.name == name) return each.kind;
  }
  return std::nullopt;
}
