// The contents of one entry, unpacked block by block in a fixed amount of memory.
#pragma once

#include <memory>
#include <string_view>

#include "archive/ByteSource.h"
#include "archive/Directory.h"

namespace Archive {

class EntryReader {
 public:
  // Fails with OutOfMemory.
  EntryReader(ByteSource& source, const Entry& entry);
  ~EntryReader();

  // Unpacks the next block, which may be empty and holds until the next call. False at the end.
  // Never gives more bytes than the entry's size. The last block is given only when the whole is
  // right: size, checksum, and no byte of the packed data left over. Refuses it otherwise.
  // Fails as the source does.
  bool Next(std::string_view& block);

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace Archive
