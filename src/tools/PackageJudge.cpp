#include "tools/PackageJudge.h"

#include "archive/ByteSource.h"
#include "archive/Directory.h"
#include "archive/EntryReader.h"
#include "archive/Names.h"
#include "base/RuntimeError.h"
#include "text/StringTable.h"

namespace PackageJudge {

std::vector<std::string> FaultsOf(const std::string& archive, int) {
  const Platform::LongStep step;
  try {
    Archive::FileSource source(archive);
    const Archive::Directory directory(source, step);
    for (const Archive::Entry& entry : directory.entries()) {
      Archive::PathOf(entry, archive);
      Archive::EntryReader reader(source, entry);
      for (std::string_view block; reader.Next(block);) {
      }
    }
  } catch (const RuntimeError& failure) {
    if (failure.number() != RuntimeError::InvalidCall) throw;
    return {GetLangString(failure.cause())};
  }
  return {};
}

}  // namespace PackageJudge
