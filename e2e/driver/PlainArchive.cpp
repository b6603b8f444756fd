#include "e2e/driver/PlainArchive.h"

#include <gtest/gtest.h>
#include <zlib.h>

#include <filesystem>

#include "e2e/driver/Places.h"

namespace E2e {

size_t NumberAt(const std::string& bytes, size_t place, int size) {
  size_t number = 0;
  for (int i = size; i-- > 0;) {
    number = number << 8 | static_cast<unsigned char>(bytes.at(place + static_cast<size_t>(i)));
  }
  return number;
}

namespace {

std::string Inflated(const std::string& packed, size_t size) {
  std::string bytes(size, '\0');
  z_stream stream{};
  inflateInit2(&stream, -MAX_WBITS);
  stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(packed.data()));
  stream.avail_in = static_cast<uInt>(packed.size());
  stream.next_out = reinterpret_cast<Bytef*>(bytes.data());
  stream.avail_out = static_cast<uInt>(bytes.size());
  EXPECT_EQ(inflate(&stream, Z_FINISH), Z_STREAM_END);
  inflateEnd(&stream);
  return bytes;
}

}  // namespace

std::vector<Packed> Unpacked(const std::string& path) {
  const std::string zip = ReadFile(path);
  std::vector<Packed> files;
  for (size_t at = 0; zip.compare(at, 4, "PK\3\4") == 0;) {
    const size_t nameSize = NumberAt(zip, at + 26, 2);
    const size_t data = at + 30 + nameSize + NumberAt(zip, at + 28, 2);
    const size_t packedSize = NumberAt(zip, at + 18, 4);
    files.push_back({zip.substr(at + 30, nameSize),
                     Inflated(zip.substr(data, packedSize), NumberAt(zip, at + 22, 4))});
    at = data + packedSize;
  }
  return files;
}

void LeaveForOtherPrograms(const std::string& archive, const std::vector<Packed>& files) {
  if (Given().archives.empty()) return;
  const std::filesystem::path kept =
      std::filesystem::path(Given().archives) / std::filesystem::path(archive).stem();
  std::filesystem::create_directories(kept);
  WriteFile(kept.string() + ".zip", ReadFile(archive));
  for (const auto& [name, bytes] : files) WriteFile((kept / name).string(), bytes);
}

}  // namespace E2e
