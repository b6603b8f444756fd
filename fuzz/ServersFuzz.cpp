// Server lists of any bytes: the list shows what a plain second reading of its lines says, each
// address that it shows is found, and a deletion or an addition changes that entry alone.
#include <string>
#include <vector>

#include "fuzz/FileInput.h"
#include "fuzz/Require.h"
#include "internet/IPManager.h"
#include "internet/ServerLines.h"

namespace {

struct Entry {
  std::string name;
  std::string address;
  bool operator==(const Entry&) const = default;
};

// The entries of a text, read byte by byte.
std::vector<Entry> EntriesOf(const std::string& bytes) {
  std::vector<Entry> entries;
  std::string line;
  const auto take = [&] {
    const size_t equals = line.find('=');
    if (equals != std::string::npos) {
      entries.push_back({line.substr(0, equals), line.substr(equals + 1)});
    }
    line.clear();
  };
  for (size_t i = 0; i < bytes.size(); ++i) {
    if (bytes[i] != '\r') {
      line += bytes[i];
      continue;
    }
    take();
    if (i + 1 < bytes.size() && bytes[i + 1] == '\n') ++i;
  }
  take();
  return entries;
}

std::vector<std::string> RowsOf(const std::vector<Entry>& entries) {
  std::vector<std::string> rows;
  for (const Entry& entry : entries) rows.push_back(entry.name + " (" + entry.address + ")");
  return rows;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  Simulated::Machine machine;
  const std::string path = machine.executable.folder + "\\iplist.dat";
  const std::string bytes = PutFileInput(machine, path, data, size);
  std::vector<Entry> entries = EntriesOf(bytes);
  Require(IPManager::IPListRows() == RowsOf(entries));
  for (const std::string& row : IPManager::IPListRows()) ServerLines::AddressOf(row);
  for (const Entry& entry : entries) Require(IPManager::IPExists(entry.address));
  Require(machine.files.Text(path) == bytes);

  if (!entries.empty()) {
    const std::string address = entries[size % entries.size()].address;
    std::vector<Entry> others = entries;
    std::erase_if(others, [&](const Entry& entry) { return entry.address == address; });
    const auto result = IPManager::DeleteIPEntry(address);
    if (others.empty()) {
      Require(result == IPManager::OtherFailure);
      Require(machine.files.Text(path) == bytes);
    } else {
      Require(result == IPManager::Deleted);
      Require(EntriesOf(machine.files.Text(path)) == others);
      entries = others;
    }
  }
  IPManager::AddIPEntry("name", "an=address");
  entries.push_back({"name", "an=address"});
  Require(EntriesOf(machine.files.Text(path)) == entries);
  IPManager::ClearIPList();
  Require(IPManager::IPListRows().empty());
  return 0;
}
