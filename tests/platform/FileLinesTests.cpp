#include "platform/FileLines.h"

#include "tests/Story.h"

namespace {

class FileLines : public Story {};

TEST_F(FileLines, AreReadWithOtherProgramsAnsweredBetweenTheBlocks) {
  constexpr size_t Megabyte = 1 << 20;
  const std::string path = "C:\\hill.trk";
  std::string bytes;
  while (bytes.size() < Megabyte) bytes += "5000\r\n";
  machine.files.Put(path, bytes);
  const int before = machine.screen.answers;
  Platform::FileLines lines(path);
  std::string_view line;
  size_t count = 0;
  while (lines.Next(line)) ++count;
  EXPECT_EQ(count, bytes.size() / 6);
  EXPECT_GE(machine.screen.answers, before + 10);
}

}  // namespace
