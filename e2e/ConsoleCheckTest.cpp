// sk2check beside the shipped program: what one prints and what the other shows in its box are the
// same, on files at random.
#include <algorithm>

#include "e2e/driver/ConsoleProgram.h"
#include "e2e/driver/PackTest.h"
#include "tests/RandomText.h"
#include "tests/tracks/RandomTrack.h"
#include "tests/vehicles/RandomVehicle.h"

namespace E2e {
namespace {

class ConsoleCheck : public PackTest {
 protected:
  // What sk2check prints of a file.
  static ConsoleOutcome Check(const std::string& path) {
    return RunTool("sk2check", {"--first", "--quiet", path});
  }

  // The pack's box for a file.
  BoxText Show(Pack& pack, const std::string& path, bool isTrack) {
    pack.ChooseMenu(isTrack ? std::vector<std::string>{"Track", "Check .trk file"}
                            : std::vector<std::string>{"Vehicle", "Check .vhc file"});
    pack.ChooseFile(path);
    const BoxText box = pack.AnswerBox();
    pack.WaitForMain();
    return box;
  }

  // What sk2check must print where the pack shows that box.
  static std::string LineOf(const BoxText& box, const std::string& path) {
    const std::string start = "Line ";
    if (box.title != "Syntax Error") return path + ": " + box.text + "\n";
    const size_t comma = box.text.find(',');
    return path + ":" + box.text.substr(start.size(), comma - start.size()) + ": " +
           box.text.substr(comma + 2) + "\n";
  }

  // Texts that a box shows as they are, whatever the code page of the machine is.
  static bool IsPlain(const std::string& bytes) {
    return std::all_of(bytes.begin(), bytes.end(),
                       [](char c) { return (c >= ' ' && c < 0x7F) || c == '\r' || c == '\n'; }) &&
           bytes.find("\n\r") == std::string::npos && bytes.find("\n\n") == std::string::npos;
  }
  static bool HasLoneLf(const std::string& bytes) {
    for (size_t i = 0; i < bytes.size(); ++i) {
      if (bytes[i] == '\n' && (i == 0 || bytes[i - 1] != '\r')) return true;
    }
    return false;
  }
};

TEST_F(ConsoleCheck, SaysOfFiftyFilesWhatThePackShows) {
  WriteFile(gameFolder() + "\\vehicles\\engine.wav", "");
  Pack& pack = StartPack();
  RandomText random(2026);
  int files = 0;
  int faults = 0;
  while (files < 50) {
    const bool isTrack = files % 2 == 0;
    const std::string bytes = isTrack ? RandomFiles::Track(random) : RandomFiles::Vehicle(random);
    if (!IsPlain(bytes) || HasLoneLf(bytes)) continue;
    const std::string path =
        gameFolder() + (isTrack ? "\\tracks\\random.trk" : "\\vehicles\\random.vhc");
    WriteFile(path, bytes);
    const BoxText box = Show(pack, path, isTrack);
    const ConsoleOutcome said = Check(path);
    ASSERT_EQ(said.said, LineOf(box, path)) << testing::PrintToString(bytes);
    // A track without an end after no lines is told under "File OK", and is none.
    const bool isGood = box.title == "File OK" && !(isTrack && bytes.empty());
    ASSERT_EQ(said.status, isGood ? 0u : 1u) << testing::PrintToString(bytes);
    ++files;
    faults += !isGood;
  }
  EXPECT_GT(faults, 15);
  EXPECT_LT(faults, 45);
}

TEST_F(ConsoleCheck, SaysOfTheRecordsAndOfMissingFilesWhatThePackShows) {
  WriteFile(gameFolder() + "\\highscore.cfg", "hill=1000\r\nlake=soon\r\n");
  Pack& pack = StartPack();
  pack.ChooseMenu({"Game", "Check Record File"});
  const std::string records = gameFolder() + "\\highscore.cfg";
  EXPECT_EQ(Check(records).said, LineOf(pack.AnswerBox(), records));
  pack.WaitForMain();
  const std::string missing = gameFolder() + "\\vehicles\\nowhere.vhc";
  const ConsoleOutcome said = Check(missing);
  EXPECT_EQ(said.said, LineOf(Show(pack, missing, false), missing));
  EXPECT_EQ(said.status, 2u);
}

}  // namespace
}  // namespace E2e
