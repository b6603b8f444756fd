#include "tools/FileSum.h"

#include <vector>

#include "base/Sha256.h"
#include "platform/Files.h"

FileSum SumOfText(std::string_view bytes) {
  Sha256 sum;
  sum.Add(bytes);
  return {bytes.size(), sum.Hex()};
}

FileSum SumOfFile(const std::string& path) {
  constexpr size_t BlockSize = size_t{1} << 16;
  Platform::FileReader file(path);
  std::vector<char> block(BlockSize);
  Sha256 sum;
  uint64_t size = 0;
  while (const size_t count = file.Read(block.data(), block.size())) {
    sum.Add({block.data(), count});
    size += count;
  }
  return {size, sum.Hex()};
}
