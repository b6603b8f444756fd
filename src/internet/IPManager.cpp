#include "internet/IPManager.h"

#include <cstddef>
#include <exception>
#include <utility>

#include "base/LineReader.h"
#include "base/RuntimeError.h"
#include "game/Configuration.h"
#include "internet/ServerLines.h"
#include "platform/Executable.h"
#include "platform/Files.h"

namespace IPManager {

namespace {

constexpr size_t LargestList = 1 << 20;

std::string Path() {
  return Platform::ProgramFolder() + "\\iplist.dat";
}

// The text of the list. Fails as Platform::FileReader does, and with OutOfMemory if it is too
// large.
std::string ReadList() {
  Platform::FileReader file(Path());
  std::string text;
  std::vector<char> block(1 << 16);
  while (const size_t count = file.Read(block.data(), block.size())) {
    text.append(block.data(), count);
    if (text.size() > LargestList) throw RuntimeError(RuntimeError::OutOfMemory, Path());
  }
  return text;
}

// The same for those to whom a list that cannot be read is an empty one.
std::string ReadListIfPossible() {
  try {
    return ReadList();
  } catch (const std::exception&) {
    return "";
  }
}

}  // namespace

std::vector<std::string> IPListRows() {
  std::vector<std::string> rows;
  for (const std::string& line : LinesOf(ReadListIfPossible())) {
    if (auto row = ServerLines::RowOf(line)) rows.push_back(std::move(*row));
  }
  return rows;
}

bool IPExists(const std::string& address) {
  for (const std::string& line : LinesOf(ReadListIfPossible())) {
    if (ServerLines::HasAddress(line, address)) return true;
  }
  return false;
}

void AddIPEntry(const std::string& name, const std::string& address) {
  Platform::AppendToFile(Path(), ServerLines::Addition(ReadListIfPossible(), name, address));
}

Deletion DeleteIPEntry(const std::string& address) {
  if (!IPExists(address)) return NotInList;
  try {
    const std::string kept = ServerLines::Without(ReadList(), address);
    // No list is written without a line in it: the only entry stays where it is.
    if (kept.empty()) return OtherFailure;
    Platform::WriteWholeFile(Path(), kept);
    return Deleted;
  } catch (const RuntimeError& error) {
    switch (error.number()) {
      case RuntimeError::FileNotFound:
      case RuntimeError::DiskFull:
      case RuntimeError::DiskNotReady:
      case RuntimeError::PathFileAccess: return ListNotAccessible;
      default: return OtherFailure;
    }
  } catch (const std::exception&) {
    return OtherFailure;
  }
}

void ClearIPList() {
  Platform::WriteWholeFile(Path(), "");
}

void SetMultiplayerServer(const std::string& address) {
  Configuration::Save("Multiplayer", address, Configuration::IfMissing::Fail);
}

}  // namespace IPManager
