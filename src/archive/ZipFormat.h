// The numbers of the zip format, and how they are taken from bytes and put into them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Archive::Zip {

// What each structure begins with, and its size up to the first part of varying length.
constexpr uint32_t LocalSignature = 0x04034B50;
constexpr uint32_t DescriptorSignature = 0x08074B50;
constexpr uint32_t RecordSignature = 0x02014B50;
constexpr uint32_t EndSignature = 0x06054B50;
constexpr uint32_t WideEndSignature = 0x06064B50;
constexpr uint32_t LocatorSignature = 0x07064B50;
constexpr size_t LocalSize = 30;
constexpr size_t RecordSize = 46;
constexpr size_t EndSize = 22;
constexpr size_t WideEndSize = 56;
constexpr size_t LocatorSize = 20;
// A record of the directory has its entry's place at this one.
constexpr size_t PlaceInRecord = 42;

// "See the wide fields", where a number of the old format is too small.
constexpr uint16_t Wide16 = 0xFFFF;
constexpr uint32_t Wide32 = 0xFFFFFFFF;

constexpr uint16_t EncryptedFlag = 1 << 0;
constexpr uint16_t DescriptorFlag = 1 << 3;
constexpr uint16_t PatchFlag = 1 << 5;
constexpr uint16_t StrongEncryptionFlag = 1 << 6;
constexpr uint16_t Utf8Flag = 1 << 11;
constexpr uint16_t MaskedFlag = 1 << 13;

constexpr uint16_t Stored = 0;
constexpr uint16_t Deflated = 8;
constexpr uint16_t EncryptedMethod = 99;

// Extra fields: a number, a size, and so many bytes.
constexpr uint16_t WideExtra = 0x0001;
constexpr uint16_t WindowsTimesExtra = 0x000A;
constexpr uint16_t UnixTimesExtra = 0x5455;
constexpr uint16_t UnicodeNameExtra = 0x7075;

// Takes little-endian numbers from bytes, one after the other. What is not there is 0, and HasAll
// is false from then on.
class FieldReader {
 public:
  explicit FieldReader(std::string_view bytes) : rest_(bytes) {}

  template <class Number>
  Number Take() {
    uint64_t number = 0;
    const std::string_view bytes = TakeBytes(sizeof(Number));
    for (size_t i = bytes.size(); i-- > 0;) {
      number = number << 8 | static_cast<unsigned char>(bytes[i]);
    }
    return static_cast<Number>(number);
  }
  std::string_view TakeBytes(size_t size) {
    if (size > rest_.size()) {
      hasAll_ = false;
      rest_ = {};
      return {};
    }
    const std::string_view taken = rest_.substr(0, size);
    rest_.remove_prefix(size);
    return taken;
  }
  bool HasAll() const { return hasAll_; }
  std::string_view rest() const { return rest_; }

 private:
  std::string_view rest_;
  bool hasAll_ = true;
};

template <class Number>
void Put(Number number, std::string& bytes) {
  for (size_t i = 0; i < sizeof(Number); ++i) {
    bytes += static_cast<char>(static_cast<uint64_t>(number) >> (8 * i));
  }
}

// The bytes of an extra field; nothing if there is none of that number, or it is cut.
inline std::optional<std::string_view> FindExtra(std::string_view extras, uint16_t number) {
  for (FieldReader fields(extras); !fields.rest().empty();) {
    const auto found = fields.Take<uint16_t>();
    const auto size = fields.Take<uint16_t>();
    const std::string_view bytes = fields.TakeBytes(size);
    if (!fields.HasAll()) return std::nullopt;
    if (found == number) return bytes;
  }
  return std::nullopt;
}

// The extra fields without those of a number; what is cut goes too.
inline std::string WithoutExtra(std::string_view extras, uint16_t number) {
  std::string others;
  for (FieldReader fields(extras); !fields.rest().empty();) {
    const std::string_view whole = fields.rest();
    const auto found = fields.Take<uint16_t>();
    const auto size = fields.Take<uint16_t>();
    fields.TakeBytes(size);
    if (!fields.HasAll()) break;
    if (found != number) others += whole.substr(0, whole.size() - fields.rest().size());
  }
  return others;
}

}  // namespace Archive::Zip
