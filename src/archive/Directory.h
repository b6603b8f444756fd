// What an archive holds, by its directory and by the headers before the data of its entries, all of
// which must agree.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "archive/ByteSource.h"
#include "platform/LongStep.h"

namespace Archive {

struct Entry {
  std::string rawName;   // as the archive holds it
  bool isUtf8 = false;   // that name; otherwise it is in a code page
  std::string utf8Name;  // another form of it, which some programs add; empty if there is none
  bool isLink = false;   // or something else that is neither a file nor a folder
  uint16_t method = 0;   // Zip::Stored or Zip::Deflated
  uint32_t checksum = 0;
  uint64_t size = 0;
  uint64_t packedSize = 0;
  uint32_t dosTime = 0;
  uint64_t exactTime = 0;  // as FileStamp has it; 0 if the archive does not tell
  // Places in the file.
  uint64_t headerPlace = 0;
  uint64_t dataPlace = 0;
  uint64_t endPlace = 0;  // behind the data and what describes it
  uint64_t recordPlace = 0;
  uint32_t recordSize = 0;
};

class Directory {
 public:
  // The most entries that an archive may have, and the most bytes that their records may take: what
  // is held of them in memory stays below 100 MB.
  static constexpr uint64_t MostEntries = 1 << 17;
  static constexpr uint64_t LargestSize = uint64_t{64} << 20;

  // Reads it, and the header of every entry. Archives may have anything before them, such as a
  // program that unpacks them, but nothing behind them except zeros.
  // Refuses what is no archive, cut, encrypted, in several parts or packed by a method other than
  // "stored" and "deflated"; entries that lie over each other or where the directory lies; sizes,
  // checksums and names of which an archive says two things; and sizes that no deflating reaches.
  // Fails as FileReader does.
  Directory(ByteSource& source, const Platform::LongStep& step);

  // In the order in which their data lies in the file.
  const std::vector<Entry>& entries() const { return entries_; }
  // The comment on the archive as a whole.
  const std::string& comment() const { return comment_; }

 private:
  std::vector<Entry> entries_;
  std::string comment_;
};

}  // namespace Archive
