#include "archive/EntryReader.h"

#include <algorithm>
#include <vector>

#include <zlib.h>

#include "archive/Names.h"
#include "archive/Refusal.h"
#include "archive/ZipFormat.h"

namespace Archive {

namespace {

constexpr size_t LargestBlock = size_t{1} << 17;

// A block for so many bytes, and no larger than they need: an archive may hold very many small
// entries. One byte more than is declared, so that an entry that holds more is found out.
std::vector<char> BlockFor(uint64_t size) {
  return std::vector<char>(static_cast<size_t>(std::min<uint64_t>(size, LargestBlock - 1)) + 1);
}

}  // namespace

struct EntryReader::State {
  State(ByteSource& from, const Entry& which)
      : source(from),
        entry(which),
        packed(BlockFor(which.packedSize)),
        unpacked(BlockFor(which.size)) {
    if (entry.method != Zip::Deflated) return;
    // A negative number of bits: there is nothing around the deflated data.
    if (inflateInit2(&stream, -MAX_WBITS) != Z_OK) {
      throw RuntimeError(RuntimeError::OutOfMemory, source.path());
    }
    isInflating = true;
  }
  ~State() {
    if (isInflating) inflateEnd(&stream);
  }
  State(const State&) = delete;
  State& operator=(const State&) = delete;

  [[noreturn]] void FailDamaged() const {
    Refuse(ArchiveTexts.ArchiveDamaged, source.path(), ShownName(entry));
  }

  // The next piece of the packed data; empty at its end.
  std::string_view ReadPacked() {
    const uint64_t left = entry.packedSize - taken;
    if (left == 0) return {};
    const auto most = static_cast<size_t>(std::min<uint64_t>(left, packed.size()));
    const size_t count = source.Read(entry.dataPlace + taken, packed.data(), most);
    if (count == 0) FailDamaged();
    taken += count;
    return {packed.data(), count};
  }

  std::string_view Inflate() {
    if (stream.avail_in == 0) {
      const std::string_view piece = ReadPacked();
      stream.next_in = reinterpret_cast<Bytef*>(packed.data());
      stream.avail_in = static_cast<uInt>(piece.size());
    }
    stream.next_out = reinterpret_cast<Bytef*>(unpacked.data());
    stream.avail_out = static_cast<uInt>(unpacked.size());
    const int result = inflate(&stream, Z_NO_FLUSH);
    if (result == Z_MEM_ERROR) throw RuntimeError(RuntimeError::OutOfMemory, source.path());
    // No progress is an error too: the packed data has ended before what it makes.
    if (result != Z_OK && result != Z_STREAM_END) FailDamaged();
    isAtEnd = result == Z_STREAM_END;
    if (isAtEnd && (stream.avail_in > 0 || taken < entry.packedSize)) FailDamaged();
    return {unpacked.data(), unpacked.size() - stream.avail_out};
  }

  void Count(std::string_view block) {
    if (block.size() > entry.size - given) FailDamaged();
    given += block.size();
    sum = crc32(sum, reinterpret_cast<const Bytef*>(block.data()), static_cast<uInt>(block.size()));
    if (isAtEnd && (given != entry.size || sum != entry.checksum)) FailDamaged();
  }

  ByteSource& source;
  const Entry& entry;
  std::vector<char> packed;
  std::vector<char> unpacked;
  z_stream stream{};
  bool isInflating = false;
  bool isAtEnd = false;
  uint64_t taken = 0;  // of the packed bytes
  uint64_t given = 0;
  uLong sum = 0;
};

EntryReader::EntryReader(ByteSource& source, const Entry& entry)
    : state_(std::make_unique<State>(source, entry)) {}

EntryReader::~EntryReader() = default;

bool EntryReader::Next(std::string_view& block) {
  State& state = *state_;
  if (state.isAtEnd) return false;
  if (state.isInflating) {
    block = state.Inflate();
  } else {
    block = state.ReadPacked();
    state.isAtEnd = state.taken == state.entry.packedSize;
  }
  state.Count(block);
  return true;
}

}  // namespace Archive
