#include "archive/Directory.h"

#include <algorithm>
#include <optional>

#include <zlib.h>

#include "archive/Refusal.h"
#include "archive/Times.h"
#include "archive/ZipFormat.h"
#include "base/Utf8.h"

namespace Archive {

namespace {

using Zip::FieldReader;

// What the system on which an entry was made is called in its record.
constexpr int MadeOnUnix = 3;
constexpr int MadeOnMac = 19;

// Where the records of the entries lie, as the end of the archive tells.
struct Extent {
  uint64_t count = 0;
  uint64_t place = 0;
  uint64_t size = 0;
  uint64_t start = 0;  // of the archive within the file, from which its places count
};

// What the last record says, and the wide one before it if there is one.
struct End {
  uint32_t disk = 0;
  uint32_t directoryDisk = 0;
  uint64_t countHere = 0;
  uint64_t count = 0;
  uint64_t size = 0;
  uint64_t offset = 0;
};

class Reading {
 public:
  Reading(ByteSource& source, const Platform::LongStep& step)
      : source_(source), step_(step), ahead_(source, size_t{1} << 16), headers_(source, 512) {}

  void ReadAll(std::vector<Entry>& entries, std::string& comment) {
    const Extent extent = FindRecords(comment);
    ReadRecords(extent, entries);
    ReadHeaders(extent, entries);
  }

 private:
  [[noreturn]] void Fail(const LangText& cause, const std::string& entry = "") const {
    Refuse(cause, source_.path(), entry);
  }
  [[noreturn]] void FailDamaged(const std::string& entry = "") const {
    Fail(ArchiveTexts.ArchiveDamaged, entry);
  }

  std::string_view Must(Window& window, uint64_t place, size_t size) const {
    const auto bytes = window.At(place, size);
    if (!bytes) FailDamaged();
    return *bytes;
  }

  // The place of the last record: the last one whose comment reaches to the file's end, or to the
  // zeros with which some programs fill up their last block.
  uint64_t FindEnd(std::string& comment) {
    constexpr uint64_t MostZeros = 1 << 16;
    const uint64_t tailSize =
        std::min<uint64_t>(source_.size(), Zip::EndSize + Zip::Wide16 + MostZeros);
    const std::string tail(Must(ahead_, source_.size() - tailSize, static_cast<size_t>(tailSize)));
    const size_t zeros = tail.size() - (tail.find_last_not_of('\0') + 1);
    for (size_t rest = Zip::EndSize; rest <= tail.size(); ++rest) {
      FieldReader fields(std::string_view(tail).substr(tail.size() - rest));
      if (fields.Take<uint32_t>() != Zip::EndSignature) continue;
      fields.TakeBytes(16);
      const size_t commentSize = fields.Take<uint16_t>();
      const std::string_view found = fields.TakeBytes(commentSize);
      if (!fields.HasAll() || fields.rest().size() > zeros) continue;
      comment = found;
      return source_.size() - rest;
    }
    // The beginning tells an archive that is cut from what never was one.
    const auto first = headers_.At(0, 4);
    if (first && FieldReader(*first).Take<uint32_t>() == Zip::LocalSignature) FailDamaged();
    Fail(ArchiveTexts.ArchiveNotAZip);
  }

  Extent FindRecords(std::string& comment) {
    uint64_t end = FindEnd(comment);
    FieldReader fields(Must(ahead_, end, Zip::EndSize));
    fields.TakeBytes(4);
    End told;
    told.disk = fields.Take<uint16_t>();
    told.directoryDisk = fields.Take<uint16_t>();
    told.countHere = fields.Take<uint16_t>();
    told.count = fields.Take<uint16_t>();
    told.size = fields.Take<uint32_t>();
    told.offset = fields.Take<uint32_t>();
    if (end >= Zip::LocatorSize) ReadWideEnd(end, told);
    if (told.disk != 0 || told.directoryDisk != 0 || told.countHere != told.count) {
      Fail(ArchiveTexts.ArchiveInSeveralParts);
    }
    // The records end where the last one begins; what the places are short of lies before the
    // archive.
    if (told.size > end || told.offset > end - told.size) FailDamaged();
    const Extent extent{told.count, end - told.size, told.size, end - told.size - told.offset};
    if (extent.count > Directory::MostEntries || extent.size > Directory::LargestSize) {
      Fail(ArchiveTexts.ArchiveTooLarge);
    }
    if (extent.count * Zip::RecordSize > extent.size) FailDamaged();
    return extent;
  }

  // Takes from the wide record, if there is one before the last, what the last one has no room for.
  //   end  becomes its place.
  void ReadWideEnd(uint64_t& end, End& told) {
    FieldReader locator(Must(ahead_, end - Zip::LocatorSize, Zip::LocatorSize));
    if (locator.Take<uint32_t>() != Zip::LocatorSignature) return;
    locator.TakeBytes(4);
    const auto offset = locator.Take<uint64_t>();
    if (locator.Take<uint32_t>() > 1) Fail(ArchiveTexts.ArchiveInSeveralParts);
    end -= Zip::LocatorSize;
    // Behind something else the archive's own places are too small, and the record stands just
    // before its locator.
    if (!IsWideEnd(offset, end)) {
      if (end < Zip::WideEndSize || !IsWideEnd(end - Zip::WideEndSize, end)) FailDamaged();
      end -= Zip::WideEndSize;
    } else {
      end = offset;
    }
    FieldReader fields(Must(ahead_, end, Zip::WideEndSize));
    fields.TakeBytes(16);
    const auto disk = fields.Take<uint32_t>();
    const auto directoryDisk = fields.Take<uint32_t>();
    const auto countHere = fields.Take<uint64_t>();
    const auto count = fields.Take<uint64_t>();
    const auto size = fields.Take<uint64_t>();
    const auto directoryOffset = fields.Take<uint64_t>();
    if (told.disk == Zip::Wide16) told.disk = disk;
    if (told.directoryDisk == Zip::Wide16) told.directoryDisk = directoryDisk;
    if (told.countHere == Zip::Wide16) told.countHere = countHere;
    if (told.count == Zip::Wide16) told.count = count;
    if (told.size == Zip::Wide32) told.size = size;
    if (told.offset == Zip::Wide32) told.offset = directoryOffset;
  }

  bool IsWideEnd(uint64_t place, uint64_t end) {
    if (place > end || end - place < Zip::WideEndSize) return false;
    FieldReader fields(Must(ahead_, place, Zip::WideEndSize));
    constexpr uint64_t NotCounted = 12;
    return fields.Take<uint32_t>() == Zip::WideEndSignature &&
           fields.Take<uint64_t>() == end - place - NotCounted;
  }

  void ReadRecords(const Extent& extent, std::vector<Entry>& entries) {
    entries.reserve(static_cast<size_t>(extent.count));
    uint64_t place = extent.place;
    const uint64_t end = extent.place + extent.size;
    for (uint64_t i = 0; i < extent.count; ++i) {
      step_.AnswerOthers();
      entries.push_back(ReadRecord(extent, place, end));
      place += entries.back().recordSize;
    }
    if (place != end) FailDamaged();
  }

  Entry ReadRecord(const Extent& extent, uint64_t place, uint64_t end) {
    if (end - place < Zip::RecordSize) FailDamaged();
    FieldReader fields(Must(ahead_, place, Zip::RecordSize));
    if (fields.Take<uint32_t>() != Zip::RecordSignature) FailDamaged();
    Entry entry;
    const int madeOn = fields.Take<uint16_t>() >> 8;
    fields.TakeBytes(2);
    const auto flags = fields.Take<uint16_t>();
    entry.method = fields.Take<uint16_t>();
    entry.dosTime = fields.Take<uint32_t>();
    entry.checksum = fields.Take<uint32_t>();
    entry.packedSize = fields.Take<uint32_t>();
    entry.size = fields.Take<uint32_t>();
    const size_t nameSize = fields.Take<uint16_t>();
    const size_t extraSize = fields.Take<uint16_t>();
    const size_t commentSize = fields.Take<uint16_t>();
    uint32_t disk = fields.Take<uint16_t>();
    fields.TakeBytes(2);
    const auto attributes = fields.Take<uint32_t>();
    uint64_t offset = fields.Take<uint32_t>();
    const size_t size = Zip::RecordSize + nameSize + extraSize + commentSize;
    if (size > end - place) FailDamaged();
    entry.recordPlace = place;
    entry.recordSize = static_cast<uint32_t>(size);

    const std::string_view record = Must(ahead_, place, size);
    entry.rawName = record.substr(Zip::RecordSize, nameSize);
    const bool isOfUnix = madeOn == MadeOnUnix || madeOn == MadeOnMac;
    entry.isUtf8 = (flags & Zip::Utf8Flag) != 0 || (isOfUnix && Utf8::IsWhole(entry.rawName));
    const std::string_view extras = record.substr(Zip::RecordSize + nameSize, extraSize);
    FieldReader wide(Zip::FindExtra(extras, Zip::WideExtra).value_or(""));
    if (entry.size == Zip::Wide32) entry.size = wide.Take<uint64_t>();
    if (entry.packedSize == Zip::Wide32) entry.packedSize = wide.Take<uint64_t>();
    if (offset == Zip::Wide32) offset = wide.Take<uint64_t>();
    if (disk == Zip::Wide16) disk = wide.Take<uint32_t>();
    if (!wide.HasAll()) FailDamaged(entry.rawName);
    if (disk != 0) Fail(ArchiveTexts.ArchiveInSeveralParts, entry.rawName);
    TakeExtras(extras, entry);
    entry.isLink = IsLink(madeOn, attributes);

    RequireKnownMethod(flags, entry.method, entry.rawName);
    if (offset > extent.place - extent.start) FailDamaged(entry.rawName);
    entry.headerPlace = extent.start + offset;
    if (entry.method == Zip::Stored && entry.size != entry.packedSize) FailDamaged(entry.rawName);
    // 258 bytes need two bits at least, so deflating never makes more than this of a byte.
    constexpr uint64_t MostFromAByte = 258 * 8 / 2;
    if (entry.size / MostFromAByte > entry.packedSize) {
      Fail(ArchiveTexts.ArchiveTooLarge, entry.rawName);
    }
    return entry;
  }

  static void TakeExtras(std::string_view extras, Entry& entry) {
    entry.exactTime = ExactTime(extras);
    const auto unicode = Zip::FindExtra(extras, Zip::UnicodeNameExtra);
    if (!unicode || entry.isUtf8) return;
    FieldReader fields(*unicode);
    const auto version = fields.Take<uint8_t>();
    // It goes with one name only: a program that did not know it may have changed the other.
    const uLong sum = crc32(0, reinterpret_cast<const Bytef*>(entry.rawName.data()),
                            static_cast<uInt>(entry.rawName.size()));
    if (version == 1 && fields.Take<uint32_t>() == sum && fields.HasAll()) {
      entry.utf8Name = fields.rest();
    }
  }

  // By what the systems that have links keep beside a file.
  static bool IsLink(int madeOn, uint32_t attributes) {
    constexpr uint32_t Kind = 0xF000;
    constexpr uint32_t Folder = 0x4000;
    constexpr uint32_t File = 0x8000;
    constexpr uint32_t Link = 0xA000;
    constexpr uint32_t WindowsLink = 0x400;
    const uint32_t kind = attributes >> 16 & Kind;
    if (kind == Link) return true;
    if (madeOn == MadeOnUnix || madeOn == MadeOnMac)
      return kind != 0 && kind != Folder && kind != File;
    return (attributes & WindowsLink) != 0;
  }

  void RequireKnownMethod(uint16_t flags, uint16_t method, const std::string& name) const {
    if (flags & (Zip::EncryptedFlag | Zip::StrongEncryptionFlag | Zip::MaskedFlag) ||
        method == Zip::EncryptedMethod) {
      Fail(ArchiveTexts.ArchiveEncrypted, name);
    }
    if ((method != Zip::Stored && method != Zip::Deflated) || flags & Zip::PatchFlag) {
      Fail(ArchiveTexts.ArchiveMethodUnknown, name);
    }
  }

  // In the order of the file, so that each must end before the next begins.
  void ReadHeaders(const Extent& extent, std::vector<Entry>& entries) {
    std::stable_sort(entries.begin(), entries.end(),
                     [](const Entry& a, const Entry& b) { return a.headerPlace < b.headerPlace; });
    for (size_t i = 0; i < entries.size(); ++i) {
      step_.AnswerOthers();
      const bool isLast = i + 1 == entries.size();
      ReadHeader(entries[i], isLast ? extent.place : entries[i + 1].headerPlace);
    }
  }

  //   limit  where what follows the entry begins.
  void ReadHeader(Entry& entry, uint64_t limit) {
    const std::string& name = entry.rawName;
    const uint64_t room = limit - entry.headerPlace;
    if (room < Zip::LocalSize) FailDamaged(name);
    FieldReader fields(Must(headers_, entry.headerPlace, Zip::LocalSize));
    if (fields.Take<uint32_t>() != Zip::LocalSignature) FailDamaged(name);
    fields.TakeBytes(2);
    const auto flags = fields.Take<uint16_t>();
    const auto method = fields.Take<uint16_t>();
    fields.TakeBytes(4);
    const auto checksum = fields.Take<uint32_t>();
    uint64_t packedSize = fields.Take<uint32_t>();
    uint64_t size = fields.Take<uint32_t>();
    const size_t nameSize = fields.Take<uint16_t>();
    const size_t extraSize = fields.Take<uint16_t>();
    const size_t headerSize = Zip::LocalSize + nameSize + extraSize;
    if (headerSize > room || entry.packedSize > room - headerSize) FailDamaged(name);
    const std::string_view header = Must(headers_, entry.headerPlace, headerSize);
    if (header.substr(Zip::LocalSize, nameSize) != name) FailDamaged(name);
    RequireKnownMethod(flags, method, name);
    if (method != entry.method) FailDamaged(name);

    const bool hasDescriptor = (flags & Zip::DescriptorFlag) != 0;
    const auto isAsTold = [&](uint64_t number, uint64_t told, uint64_t unknown) {
      return number == told || (hasDescriptor && (number == 0 || number == unknown));
    };
    const auto extra = Zip::FindExtra(header.substr(Zip::LocalSize + nameSize), Zip::WideExtra);
    if (extra) {
      FieldReader wide(*extra);
      if (size == Zip::Wide32) size = wide.Take<uint64_t>();
      if (packedSize == Zip::Wide32) packedSize = wide.Take<uint64_t>();
      if (!wide.HasAll()) FailDamaged(name);
    }
    if (!isAsTold(checksum, entry.checksum, 0) || !isAsTold(size, entry.size, Zip::Wide32) ||
        !isAsTold(packedSize, entry.packedSize, Zip::Wide32)) {
      FailDamaged(name);
    }
    entry.dataPlace = entry.headerPlace + headerSize;
    entry.endPlace = entry.dataPlace + entry.packedSize;
    if (hasDescriptor) entry.endPlace += DescriptorSize(entry, limit);
  }

  // What follows the data of a program that did not know its size before: with a signature or
  // without one, with small or wide sizes. It must say what the directory says.
  size_t DescriptorSize(const Entry& entry, uint64_t limit) {
    for (const bool hasSignature : {true, false}) {
      for (const bool isWide : {false, true}) {
        std::string wanted;
        if (hasSignature) Zip::Put(Zip::DescriptorSignature, wanted);
        Zip::Put(entry.checksum, wanted);
        for (const uint64_t size : {entry.packedSize, entry.size}) {
          if (isWide) {
            Zip::Put(size, wanted);
          } else {
            Zip::Put(static_cast<uint32_t>(size), wanted);
          }
        }
        if (wanted.size() > limit - entry.endPlace) continue;
        if (Must(headers_, entry.endPlace, wanted.size()) == wanted) return wanted.size();
      }
    }
    FailDamaged(entry.rawName);
  }

  ByteSource& source_;
  const Platform::LongStep& step_;
  Window ahead_;
  Window headers_;
};

}  // namespace

Directory::Directory(ByteSource& source, const Platform::LongStep& step) {
  Reading(source, step).ReadAll(entries_, comment_);
}

}  // namespace Archive
