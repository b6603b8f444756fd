// Zip archives put together byte by byte, good ones and lying ones, for all tests of them. Nothing
// here comes from the code that they test.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <zlib.h>

namespace ZipBytes {

template <class Number>
void Put(Number number, std::string& bytes) {
  for (size_t i = 0; i < sizeof(Number); ++i) {
    bytes += static_cast<char>(static_cast<uint64_t>(number) >> (8 * i));
  }
}

inline uint32_t Checksum(std::string_view bytes) {
  return static_cast<uint32_t>(
      crc32(0, reinterpret_cast<const Bytef*>(bytes.data()), static_cast<uInt>(bytes.size())));
}

inline std::string Deflated(const std::string& bytes) {
  z_stream stream{};
  deflateInit2(&stream, 9, Z_DEFLATED, -MAX_WBITS, 8, Z_DEFAULT_STRATEGY);
  std::string packed(deflateBound(&stream, static_cast<uLong>(bytes.size())), '\0');
  stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data()));
  stream.avail_in = static_cast<uInt>(bytes.size());
  stream.next_out = reinterpret_cast<Bytef*>(packed.data());
  stream.avail_out = static_cast<uInt>(packed.size());
  deflate(&stream, Z_FINISH);
  packed.resize(packed.size() - stream.avail_out);
  deflateEnd(&stream);
  return packed;
}

// An extra field.
inline std::string Extra(uint16_t number, const std::string& bytes) {
  std::string extra;
  Put(number, extra);
  Put(static_cast<uint16_t>(bytes.size()), extra);
  return extra + bytes;
}

// What follows the data and tells of it.
enum class Descriptor { None, Signed, Unsigned, WideSigned, WideUnsigned };

constexpr uint16_t Stored = 0;
constexpr uint16_t Deflate = 8;
constexpr uint16_t Utf8 = 1 << 11;
constexpr uint32_t Noon = 0x5D5F6000;  // 31 October 2026, 12:00

struct Member {
  std::string name = {};
  std::string contents = {};
  uint16_t method = Deflate;
  uint16_t flags = 0;
  Descriptor descriptor = Descriptor::None;
  bool isWide = false;  // has its sizes and its place in wide fields
  uint32_t dosTime = Noon;
  uint8_t madeOn = 0;
  uint32_t attributes = 0;
  std::string extras = {};  // in the directory
  std::string localExtras = {};
  std::string comment = {};
  uint16_t disk = 0;

  // Lies, where they are given.
  std::optional<std::string> packed = {};  // the data itself
  std::optional<std::string> localName = {};
  std::optional<uint16_t> localMethod = {};
  std::optional<uint16_t> localFlags = {};
  std::optional<uint32_t> checksum = {};  // everywhere
  std::optional<uint32_t> localChecksum = {};
  std::optional<uint32_t> descriptorChecksum = {};
  std::optional<uint64_t> size = {};  // everywhere
  std::optional<uint64_t> localSize = {};
  std::optional<uint64_t> packedSize = {};  // everywhere
  std::optional<uint64_t> offset = {};
  uint32_t localSignature = 0x04034B50;
  uint32_t signature = 0x02014B50;
};

struct Archive {
  std::vector<Member> members = {};
  std::string stub = {};    // before the archive
  bool countsStub = false;  // whether its places count from the stub's start
  std::string beforeDirectory = {};
  std::string comment = {};
  bool isWide = false;  // has a wide record at its end

  // Lies.
  std::optional<uint64_t> count = {};
  std::optional<uint64_t> size = {};
  std::optional<uint64_t> offset = {};
  std::optional<uint64_t> wideSize = {};
  uint16_t disk = 0;
  uint32_t disks = 1;
  std::string behind = {};
};

namespace Parts {

struct Facts {
  std::string packed;
  uint32_t checksum;
  uint64_t size;
  uint64_t packedSize;
};

inline Facts FactsOf(const Member& member) {
  Facts facts;
  facts.packed = member.packed        ? *member.packed
                 : member.method == 8 ? Deflated(member.contents)
                                      : member.contents;
  facts.checksum = member.checksum.value_or(Checksum(member.contents));
  facts.size = member.size.value_or(member.contents.size());
  facts.packedSize = member.packedSize.value_or(facts.packed.size());
  return facts;
}

inline uint32_t Narrow(uint64_t number, bool isWide) {
  return isWide ? 0xFFFFFFFF : static_cast<uint32_t>(number);
}

inline std::string Local(const Member& member, const Facts& facts) {
  const bool isLater = member.descriptor != Descriptor::None;
  const uint64_t size = isLater ? 0 : member.localSize.value_or(facts.size);
  const uint64_t packedSize = isLater ? 0 : facts.packedSize;
  const bool isWide = member.isWide;
  std::string extras = member.localExtras;
  if (isWide) {
    std::string sizes;
    Put(size, sizes);
    Put(packedSize, sizes);
    extras += Extra(1, sizes);
  }
  const std::string name = member.localName.value_or(member.name);
  std::string bytes;
  Put(member.localSignature, bytes);
  Put(uint16_t{20}, bytes);
  const auto flags = static_cast<uint16_t>(member.flags | (isLater ? 8 : 0));
  Put(member.localFlags.value_or(flags), bytes);
  Put(member.localMethod.value_or(member.method), bytes);
  Put(member.dosTime, bytes);
  Put(isLater ? 0 : member.localChecksum.value_or(facts.checksum), bytes);
  Put(Narrow(packedSize, isWide), bytes);
  Put(Narrow(size, isWide), bytes);
  Put(static_cast<uint16_t>(name.size()), bytes);
  Put(static_cast<uint16_t>(extras.size()), bytes);
  bytes += name + extras + facts.packed;
  if (!isLater) return bytes;
  const bool isSigned =
      member.descriptor == Descriptor::Signed || member.descriptor == Descriptor::WideSigned;
  const bool isWideOne =
      member.descriptor == Descriptor::WideSigned || member.descriptor == Descriptor::WideUnsigned;
  if (isSigned) Put(uint32_t{0x08074B50}, bytes);
  Put(member.descriptorChecksum.value_or(facts.checksum), bytes);
  for (const uint64_t number : {facts.packedSize, facts.size}) {
    if (isWideOne) {
      Put(number, bytes);
    } else {
      Put(static_cast<uint32_t>(number), bytes);
    }
  }
  return bytes;
}

inline std::string Record(const Member& member, const Facts& facts, uint64_t place) {
  const uint64_t offset = member.offset.value_or(place);
  std::string extras = member.extras;
  if (member.isWide) {
    std::string numbers;
    for (const uint64_t number : {facts.size, facts.packedSize, offset}) Put(number, numbers);
    extras += Extra(1, numbers);
  }
  std::string bytes;
  Put(member.signature, bytes);
  Put(uint8_t{20}, bytes);
  Put(member.madeOn, bytes);
  Put(uint16_t{20}, bytes);
  Put(static_cast<uint16_t>(member.flags | (member.descriptor != Descriptor::None ? 8 : 0)), bytes);
  Put(member.method, bytes);
  Put(member.dosTime, bytes);
  Put(facts.checksum, bytes);
  Put(Narrow(facts.packedSize, member.isWide), bytes);
  Put(Narrow(facts.size, member.isWide), bytes);
  for (const size_t size : {member.name.size(), extras.size(), member.comment.size()}) {
    Put(static_cast<uint16_t>(size), bytes);
  }
  Put(member.disk, bytes);
  Put(uint16_t{0}, bytes);
  Put(member.attributes, bytes);
  Put(Narrow(offset, member.isWide), bytes);
  return bytes + member.name + extras + member.comment;
}

}  // namespace Parts

inline std::string Bytes(const Archive& archive) {
  std::string bytes = archive.stub;
  const uint64_t base = archive.countsStub ? 0 : archive.stub.size();
  std::string directory;
  for (const Member& member : archive.members) {
    const Parts::Facts facts = Parts::FactsOf(member);
    directory += Parts::Record(member, facts, bytes.size() - base);
    bytes += Parts::Local(member, facts);
  }
  bytes += archive.beforeDirectory;
  const uint64_t offset = archive.offset.value_or(bytes.size() - base);
  const uint64_t count = archive.count.value_or(archive.members.size());
  const uint64_t size = archive.size.value_or(directory.size());
  bytes += directory;
  if (archive.isWide) {
    const uint64_t place = bytes.size() - base;
    Put(uint32_t{0x06064B50}, bytes);
    Put(archive.wideSize.value_or(44), bytes);
    Put(uint16_t{45}, bytes);
    Put(uint16_t{45}, bytes);
    Put(uint32_t{archive.disk}, bytes);
    Put(uint32_t{archive.disk}, bytes);
    for (const uint64_t number : {count, count, size, offset}) Put(number, bytes);
    Put(uint32_t{0x07064B50}, bytes);
    Put(uint32_t{0}, bytes);
    Put(place, bytes);
    Put(archive.disks, bytes);
  }
  const bool isWide = archive.isWide;
  Put(uint32_t{0x06054B50}, bytes);
  for (int i = 0; i < 2; ++i) Put(isWide ? uint16_t{0xFFFF} : archive.disk, bytes);
  for (int i = 0; i < 2; ++i) {
    Put(isWide ? uint16_t{0xFFFF} : static_cast<uint16_t>(count), bytes);
  }
  Put(Parts::Narrow(size, isWide), bytes);
  Put(Parts::Narrow(offset, isWide), bytes);
  Put(static_cast<uint16_t>(archive.comment.size()), bytes);
  return bytes + archive.comment + archive.behind;
}

// An archive of one member.
inline std::string Of(const Member& member) {
  return Bytes({.members = {member}});
}

}  // namespace ZipBytes
