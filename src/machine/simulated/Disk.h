// The disk of the simulated machine: case-insensitive, with backslash paths, attributes, stamps
// that move with each write, and other programs that hold its files open.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "base/RuntimeError.h"
#include "machine/simulated/Faults.h"
#include "platform/SystemError.h"

namespace Simulated {

// Attributes of a file; their sum is what SetAttributes takes.
enum Attribute { NoAttributes = 0, ReadOnly = 1, Hidden = 2, System = 4 };

// A file that someone has open: what for, and what they let others do meanwhile.
struct Opening {
  bool reads = false;
  bool writes = false;
  bool letsRead = false;
  bool letsWrite = false;
  bool letsDelete = false;
};

// A file or folder of the disk.
struct DiskEntry : std::enable_shared_from_this<DiskEntry> {
  std::string path;  // as it was made, letter case kept
  bool isFolder = false;
  std::string bytes;
  std::string appended;  // what the program has added at its end, in one go or several
  std::string hostPath;  // where the bytes are read from instead, if not empty
  int attributes = NoAttributes;
  uint64_t lastWrite = 0;
  std::vector<const Opening*> openings;  // by the program
  std::optional<Opening> held;           // by another program
  uint64_t made = 0;                     // grows from one that was made to the next
  bool refusesFiles = false;             // a folder in which no file can be made or deleted
  bool refusesWrites = false;            // a file that the user has no right to write

  bool IsOpen() const { return held || !openings.empty(); }
  // True if those who have the file open let it be opened so as well.
  bool Allows(const Opening& wanted) const;
  // True if they let it be deleted or renamed.
  bool AllowsToGo() const;
};

class Disk {
 public:
  // What tests prepare and look at. Paths are absolute; folders on the way are made.

  // A file with these bytes, as another program would write it: attributes and letter case of a
  // file that is there are kept.
  void Put(const std::string& path, std::string_view bytes);
  void PutFolder(const std::string& path);
  // A file whose bytes are read, piece by piece, from a file of the machine that runs the tests.
  void MountHostFile(const std::string& path, const std::string& hostPath);
  // Takes a file away, as another program would.
  void Delete(const std::string& path);

  bool Exists(const std::string& path) const { return Find(path) != nullptr; }
  // The bytes of a file that must exist.
  std::string Text(const std::string& path) const;
  // What the program has appended to a file; empty if there is none.
  std::string Appended(const std::string& path) const;
  // The names in a folder, sorted without regard to letter case.
  std::vector<std::string> Names(const std::string& folder) const;

  void SetAttributes(const std::string& path, int attributes);
  int Attributes(const std::string& path) const;

  // Another program opens a file, to read or to write it, and lets others read it only: it cannot
  // be written or deleted until Release.
  void Hold(const std::string& path);
  // Another program opens a file for itself alone: it cannot be read either until Release.
  void HoldAlone(const std::string& path);
  // Another program has a file open and lets others read and write it, but not delete or replace
  // it, as the running game does.
  void HoldShared(const std::string& path);
  void Release(const std::string& path);
  // Lets go of a held file once the program has waited for it that many times.
  void ReleaseAfterWaits(const std::string& path, int waits);

  // The user may not make or delete files in the folder; those that are there can be rewritten.
  void RefuseNewFiles(const std::string& folder);
  // The user may read the file, but not write it.
  void RefuseWrites(const std::string& path);

  // The first writes succeed, all later ones fail: whatever is written by one call of the program,
  // and each flush, since only then it is known that the disk has taken it.
  void FailWrites(After after, RuntimeError::Number number);

  // What the program is told of the free space; what it writes does not change it.
  void SetFreeSpace(uint64_t bytes) { freeSpace_ = bytes; }

  // Where the program keeps temporary files.
  static constexpr const char* TemporaryFolder = "C:\\Windows\\Temp";
  // Makes it a machine that has no such folder.
  void HaveNoTemporaryFolder() { hasTemporaryFolder_ = false; }

  // The most bytes that one call of FileReader::Read gives.
  void LimitReads(size_t bytes) { largestRead_ = bytes; }

  // For the services.
  const DiskEntry* Find(const std::string& path) const;
  DiskEntry* Find(const std::string& path);
  // A new file, or the one that is there, in a folder that must exist.
  DiskEntry& Make(const std::string& path);
  void Erase(const std::string& path);
  void Written(DiskEntry& entry) { entry.lastWrite = FirstWrite + ++writes_ * Second; }
  uint64_t FreeSpace() const { return freeSpace_; }
  // Counts a write; gives the error that FailWrites asked for when its turn has come.
  Platform::SystemError CountWrite();
  bool HasTemporaryFolder() const { return hasTemporaryFolder_; }
  // Gives a file or folder another path; what stood there is gone.
  void Move(const std::string& from, const std::string& to);
  // What is in a folder, in the order in which it was made.
  std::vector<const DiskEntry*> Inside(const std::string& folder) const;
  // The program has waited: another one may let go of a file meanwhile.
  void Waited();
  // The program has ended: whatever it had open is closed.
  void CloseAll();
  size_t LargestRead() const { return largestRead_; }
  // The paths of the files that the program has open.
  std::vector<std::string> OpenFiles() const;

 private:
  // The first of October 2026 at eight in the morning, UTC. A second goes by from write to write.
  static constexpr uint64_t Second = 10'000'000;
  static constexpr uint64_t FirstWrite = 13435315200ULL * Second;

  DiskEntry& MustFind(const std::string& path);

  std::map<std::string, std::shared_ptr<DiskEntry>> entries_;  // by path in lower case
  uint64_t writes_ = 0;
  uint64_t made_ = 0;
  size_t largestRead_ = SIZE_MAX;
  uint64_t freeSpace_ = uint64_t{1} << 40;
  int writesLeft_ = 0;
  std::optional<RuntimeError::Number> writeFault_;
  bool hasTemporaryFolder_ = true;
  std::map<std::string, int> waitsLeft_;  // until another program lets go, by path
};

// The bytes of a file, wherever they lie, and how many there are.
std::string BytesOf(const DiskEntry& entry);
uint64_t SizeOf(const DiskEntry& entry);

// A text in the machine's code page with its capital letters turned into small ones, as the disk
// and the registry compare names.
std::string FoldCase(std::string_view text);

}  // namespace Simulated
