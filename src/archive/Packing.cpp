#include "archive/Packing.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <set>

#include <zlib.h>

#include "archive/Directory.h"
#include "archive/EntryReader.h"
#include "archive/Names.h"
#include "archive/Refusal.h"
#include "archive/Times.h"
#include "archive/ZipFormat.h"
#include "platform/Files.h"
#include "platform/LetterCase.h"
#include "platform/Paths.h"

namespace Archive {

namespace {

using Platform::LongStep;
using Zip::Put;

constexpr size_t BlockSize = size_t{1} << 17;
constexpr uint16_t OldVersion = 20;   // what it takes to read an entry: deflating
constexpr uint16_t WideVersion = 45;  // and wide sizes

// A file that is to be packed.
struct Source {
  std::string path;
  std::string key;  // its name as names are compared
  StoredName name;
};

// An entry as it stands in the new archive.
struct Written {
  uint64_t place = 0;
  const Entry* kept = nullptr;     // of the old archive,
  const Source* source = nullptr;  // or a file's
  uint32_t dosTime = 0;
  std::optional<uint32_t> unixTime = std::nullopt;
  uint32_t checksum = 0;
  uint64_t size = 0;
  uint64_t packedSize = 0;
};

std::vector<Source> SourcesOf(const std::vector<std::string>& files, const std::string& archive) {
  std::vector<Source> sources;
  for (const std::string& path : files) {
    const std::string key = Platform::LowerCase(Platform::NameOf(path));
    const auto same = std::ranges::find(sources, key, &Source::key);
    if (same == sources.end()) {
      sources.push_back({path, key, StoredNameOf(Platform::NameOf(path))});
    } else if (Platform::LowerCase(same->path) != Platform::LowerCase(path)) {
      Refuse(ArchiveTexts.ArchiveNameTwice, archive, Platform::NameOf(path));
    }
  }
  return sources;
}

// The archive that is there.
struct OldArchive {
  // Nothing if there is none. Only its opening tells for sure: what cannot be asked for may be
  // there.
  static std::unique_ptr<OldArchive> OpenIfThere(const std::string& path, const LongStep& step) {
    std::unique_ptr<FileSource> source;
    try {
      source = std::make_unique<FileSource>(path);
    } catch (const RuntimeError& failure) {
      if (failure.number() != RuntimeError::FileNotFound) throw;
      return nullptr;
    }
    return std::make_unique<OldArchive>(std::move(source), step);
  }
  OldArchive(std::unique_ptr<FileSource> opened, const LongStep& step)
      : source(std::move(opened)), directory(*source, step) {}

  std::unique_ptr<FileSource> source;
  Directory directory;
};

// The deflating of one file.
class Deflater {
 public:
  explicit Deflater(const std::string& path) {
    constexpr int MostMemory = 9;
    // A negative number of bits: there is nothing around the deflated data.
    if (deflateInit2(&stream_, Z_BEST_COMPRESSION, Z_DEFLATED, -MAX_WBITS, MostMemory,
                     Z_DEFAULT_STRATEGY) != Z_OK) {
      throw RuntimeError(RuntimeError::OutOfMemory, path);
    }
  }
  ~Deflater() { deflateEnd(&stream_); }
  Deflater(const Deflater&) = delete;
  Deflater& operator=(const Deflater&) = delete;

  // Hands what comes of a block to `use`, piece by piece.
  template <class Use>
  void Deflate(std::string_view block, bool isLast, const Use& use) {
    stream_.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(block.data()));
    stream_.avail_in = static_cast<uInt>(block.size());
    do {
      stream_.next_out = reinterpret_cast<Bytef*>(packed_.data());
      stream_.avail_out = static_cast<uInt>(packed_.size());
      deflate(&stream_, isLast ? Z_FINISH : Z_NO_FLUSH);
      use(std::string_view(packed_.data(), packed_.size() - stream_.avail_out));
    } while (stream_.avail_out == 0);
  }

 private:
  z_stream stream_{};
  std::vector<char> packed_ = std::vector<char>(BlockSize);
};

class ArchiveWriter {
 public:
  ArchiveWriter(const std::string& path, Platform::IfThere ifThere, const LongStep& step)
      : path_(path), step_(step), writer_(path, ifThere) {}

  // Takes over what the old archive has, but for entries that the files replace. What stands before
  // its entries, such as a program, stays there.
  void Keep(OldArchive& old, const std::vector<Source>& sources) {
    std::set<std::string> replaced;
    for (const Source& source : sources) replaced.insert(source.key);
    const auto& entries = old.directory.entries();
    if (!entries.empty()) Copy(*old.source, 0, entries.front().headerPlace);
    for (const Entry& entry : entries) {
      if (replaced.contains(Platform::LowerCase(ShownName(entry)))) continue;
      entries_.push_back({.place = length_, .kept = &entry});
      Copy(*old.source, entry.headerPlace, entry.endPlace);
    }
  }

  void Add(const Source& source) {
    FileSource file(source.path);
    const auto stamp = Platform::StampOf(source.path);
    if (!stamp) throw RuntimeError(RuntimeError::FileNotFound, source.path);
    Written entry{.place = length_, .source = &source};
    entry.dosTime = DosTimeOf(stamp->lastWrite);
    entry.unixTime = UnixTimeOf(stamp->lastWrite);
    // Whether the header has wide sizes is decided now, while they are not known yet: deflating may
    // make a file a little larger.
    const bool isWide = file.size() > Zip::Wide32 - Zip::Wide32 / 1000;
    const std::string header = HeaderOf(entry, isWide);
    Write(header);
    WriteDeflated(file, entry);
    if (!isWide && std::max(entry.size, entry.packedSize) >= Zip::Wide32) {
      Refuse(ArchiveTexts.ArchiveSourceChanged, source.path);
    }
    writer_.WriteOver(entry.place, HeaderOf(entry, isWide));
    entries_.push_back(entry);
  }

  void WriteDirectory(OldArchive* old) {
    const uint64_t start = length_;
    for (const Written& entry : entries_) {
      Write(entry.kept ? KeptRecordOf(entry, *old->source) : RecordOf(entry));
    }
    WriteEnd(start, old ? old->directory.comment() : "");
  }

  // Reads all of it back.
  void Verify() {
    WrittenSource written(writer_, path_, length_);
    const Directory directory(written, step_);
    if (directory.entries().size() != entries_.size()) {
      Refuse(ArchiveTexts.ArchiveDamaged, path_);
    }
    for (size_t i = 0; i < entries_.size(); ++i) {
      VerifyEntry(written, directory.entries()[i], entries_[i]);
    }
  }

  void Finish() { writer_.Finish(); }

 private:
  void Write(std::string_view bytes) {
    writer_.Write(bytes);
    length_ += bytes.size();
  }

  void Copy(ByteSource& source, uint64_t from, uint64_t to) {
    while (from < to) {
      const auto most = static_cast<size_t>(std::min<uint64_t>(to - from, block_.size()));
      const size_t count = source.Read(from, block_.data(), most);
      if (count == 0) Refuse(ArchiveTexts.ArchiveDamaged, path_);
      Write({block_.data(), count});
      from += count;
      step_.AnswerOthers();
    }
  }

  void WriteDeflated(FileSource& file, Written& entry) {
    Deflater deflater(path_);
    uLong sum = 0;
    for (bool isLast = false; !isLast;) {
      const size_t count = file.Read(entry.size, block_.data(), block_.size());
      isLast = count == 0;
      sum = crc32(sum, reinterpret_cast<const Bytef*>(block_.data()), static_cast<uInt>(count));
      entry.size += count;
      deflater.Deflate({block_.data(), count}, isLast, [&](std::string_view packed) {
        if (packed.empty()) return;
        Write(packed);
        entry.packedSize += packed.size();
      });
      step_.AnswerOthers();
    }
    entry.checksum = static_cast<uint32_t>(sum);
  }

  // What header and record have in common, from the version that it takes to the sizes.
  static void PutCommon(const Written& entry, bool isWide, std::string& bytes) {
    Put(isWide ? WideVersion : OldVersion, bytes);
    Put(entry.source->name.isUtf8 ? Zip::Utf8Flag : uint16_t{0}, bytes);
    Put(Zip::Deflated, bytes);
    Put(entry.dosTime, bytes);
    Put(entry.checksum, bytes);
    for (const uint64_t size : {entry.packedSize, entry.size}) {
      Put(isWide ? Zip::Wide32 : static_cast<uint32_t>(size), bytes);
    }
  }

  static void PutUnixTime(const Written& entry, std::string& extras) {
    if (!entry.unixTime) return;
    Put(Zip::UnixTimesExtra, extras);
    Put(uint16_t{5}, extras);
    Put(uint8_t{1}, extras);  // the last write alone
    Put(*entry.unixTime, extras);
  }

  static void PutWide(const std::vector<uint64_t>& numbers, std::string& extras) {
    if (numbers.empty()) return;
    Put(Zip::WideExtra, extras);
    Put(static_cast<uint16_t>(numbers.size() * sizeof(uint64_t)), extras);
    for (const uint64_t number : numbers) Put(number, extras);
  }

  // The header before an entry's data. Its length does not depend on the sizes.
  static std::string HeaderOf(const Written& entry, bool isWide) {
    std::string extras;
    if (isWide) PutWide({entry.size, entry.packedSize}, extras);
    PutUnixTime(entry, extras);
    std::string header;
    Put(Zip::LocalSignature, header);
    PutCommon(entry, isWide, header);
    Put(static_cast<uint16_t>(entry.source->name.bytes.size()), header);
    Put(static_cast<uint16_t>(extras.size()), header);
    return header + entry.source->name.bytes + extras;
  }

  static std::string RecordOf(const Written& entry) {
    const bool isWide = std::max(entry.size, entry.packedSize) >= Zip::Wide32;
    const bool isFar = entry.place >= Zip::Wide32;
    std::vector<uint64_t> wide;
    if (isWide) wide = {entry.size, entry.packedSize};
    if (isFar) wide.push_back(entry.place);
    std::string extras;
    PutWide(wide, extras);
    PutUnixTime(entry, extras);
    constexpr uint32_t ArchiveAttribute = 0x20;
    std::string record;
    Put(Zip::RecordSignature, record);
    Put(wide.empty() ? OldVersion : WideVersion, record);  // made by it, on a system like DOS
    PutCommon(entry, isWide, record);
    Put(static_cast<uint16_t>(entry.source->name.bytes.size()), record);
    Put(static_cast<uint16_t>(extras.size()), record);
    Put(uint16_t{0}, record);  // no comment
    Put(uint16_t{0}, record);  // the first disk
    Put(uint16_t{0}, record);
    Put(ArchiveAttribute, record);
    Put(isFar ? Zip::Wide32 : static_cast<uint32_t>(entry.place), record);
    return record + entry.source->name.bytes + extras;
  }

  // The old record with another place. Its wide field is made anew, as the place may have been in
  // it or be in it now.
  std::string KeptRecordOf(const Written& entry, ByteSource& old) const {
    const Entry& kept = *entry.kept;
    Window window(old, 0);
    const auto found = window.At(kept.recordPlace, kept.recordSize);
    if (!found) Refuse(ArchiveTexts.ArchiveDamaged, path_);
    const std::string_view record = *found;
    Zip::FieldReader sizes(record.substr(20, 12));
    const bool hasWidePackedSize = sizes.Take<uint32_t>() == Zip::Wide32;
    const bool hasWideSize = sizes.Take<uint32_t>() == Zip::Wide32;
    const size_t nameSize = sizes.Take<uint16_t>();
    const size_t extraSize = sizes.Take<uint16_t>();
    const std::string_view extras = record.substr(Zip::RecordSize + nameSize, extraSize);

    std::vector<uint64_t> wide;
    if (hasWideSize) wide.push_back(kept.size);
    if (hasWidePackedSize) wide.push_back(kept.packedSize);
    const bool isFar = entry.place >= Zip::Wide32;
    if (isFar) wide.push_back(entry.place);
    std::string newExtras;
    PutWide(wide, newExtras);
    newExtras += Zip::WithoutExtra(extras, Zip::WideExtra);
    if (newExtras.size() > Zip::Wide16) Refuse(ArchiveTexts.ArchiveTooLarge, path_);

    std::string made(record.substr(0, 30));
    Put(static_cast<uint16_t>(newExtras.size()), made);
    made += record.substr(32, 2);
    Put(uint16_t{0}, made);  // the first disk
    made += record.substr(36, 6);
    Put(isFar ? Zip::Wide32 : static_cast<uint32_t>(entry.place), made);
    made += record.substr(Zip::RecordSize, nameSize);
    made += newExtras;
    return made.append(record.substr(Zip::RecordSize + nameSize + extraSize));
  }

  void WriteEnd(uint64_t start, const std::string& comment) {
    const uint64_t count = entries_.size();
    const uint64_t end = length_;
    const uint64_t size = end - start;
    const bool isWide = count >= Zip::Wide16 || size >= Zip::Wide32 || start >= Zip::Wide32;
    std::string bytes;
    if (isWide) {
      Put(Zip::WideEndSignature, bytes);
      Put(uint64_t{Zip::WideEndSize - 12}, bytes);
      Put(WideVersion, bytes);
      Put(WideVersion, bytes);
      Put(uint64_t{0}, bytes);  // both on the first disk
      for (const uint64_t number : {count, count, size, start}) Put(number, bytes);
      Put(Zip::LocatorSignature, bytes);
      Put(uint32_t{0}, bytes);
      Put(end, bytes);
      Put(uint32_t{1}, bytes);
    }
    Put(Zip::EndSignature, bytes);
    Put(uint32_t{0}, bytes);
    for (int i = 0; i < 2; ++i) {
      Put(count >= Zip::Wide16 ? Zip::Wide16 : static_cast<uint16_t>(count), bytes);
    }
    for (const uint64_t number : {size, start}) {
      Put(number >= Zip::Wide32 ? Zip::Wide32 : static_cast<uint32_t>(number), bytes);
    }
    Put(static_cast<uint16_t>(comment.size()), bytes);
    Write(bytes + comment);
  }

  void VerifyEntry(ByteSource& written, const Entry& entry, const Written& wanted) {
    const bool isRight =
        entry.headerPlace == wanted.place &&
        entry.rawName == (wanted.kept ? wanted.kept->rawName : wanted.source->name.bytes);
    if (!isRight) Refuse(ArchiveTexts.ArchiveDamaged, path_, ShownName(entry));
    std::unique_ptr<FileSource> source;
    if (wanted.source) source = std::make_unique<FileSource>(wanted.source->path);
    EntryReader reader(written, entry);
    uint64_t place = 0;
    for (std::string_view block; reader.Next(block);) {
      if (source) RequireSame(*source, place, block);
      place += block.size();
      step_.AnswerOthers();
    }
    char next;
    if (source && source->Read(place, &next, 1) != 0) {
      Refuse(ArchiveTexts.ArchiveSourceChanged, source->path());
    }
  }

  void RequireSame(ByteSource& source, uint64_t place, std::string_view block) {
    while (!block.empty()) {
      const size_t count = source.Read(place, block_.data(), std::min(block.size(), block_.size()));
      if (count == 0 || block.substr(0, count) != std::string_view(block_.data(), count)) {
        Refuse(ArchiveTexts.ArchiveSourceChanged, source.path());
      }
      place += count;
      block.remove_prefix(count);
    }
  }

  std::string path_;
  const LongStep& step_;
  Platform::FileWriter writer_;
  uint64_t length_ = 0;
  std::vector<Written> entries_;
  // For whatever is read: one for all entries, of which there may be very many.
  std::vector<char> block_ = std::vector<char>(BlockSize);
};

}  // namespace

void Pack(const std::string& archive, const std::vector<std::string>& files) {
  const LongStep step;
  const std::vector<Source> sources = SourcesOf(files, archive);
  std::unique_ptr<OldArchive> old = OldArchive::OpenIfThere(archive, step);
  ArchiveWriter writer(archive, old ? Platform::IfThere::Replace : Platform::IfThere::Fail, step);
  if (old) writer.Keep(*old, sources);
  for (const Source& source : sources) writer.Add(source);
  writer.WriteDirectory(old.get());
  writer.Verify();
  // While it is open it cannot be replaced. What is kept of it has been written.
  old.reset();
  writer.Finish();
}

}  // namespace Archive
