// The shipped program is ended at each file call of a save: the user's file is the old one or the
// new one, whole, and after the next save nothing of the pack's is left beside it.
#include "e2e/driver/FileCallTrap.h"
#include "e2e/driver/PackTest.h"
#include "e2e/driver/PlainArchive.h"

namespace E2e {
namespace {

using testing::AnyOf;

class EndedWhileSaving : public PackTest {
 protected:
  // Ends the pack at one call after the other, until a save has no more.
  //   saveWell  makes a save that goes well, and looks at it.
  //   begin     begins another one, as far as to the last thing that the user does for it.
  //   finish    does that.
  //   isDone    whether that save is over, in a pack that was not ended.
  //   look      looks at the files.
  //   stride    from one call at which the pack is ended to the next.
  struct Saves {
    std::function<void(Pack&)> saveWell;
    std::function<void(Pack&)> begin;
    std::function<void(Pack&)> finish;
    std::function<bool(Pack&)> isDone;
    std::function<void()> look;
    int stride = 1;
  };
  void EndAtEachCall(const Saves& saves) {
    bool isEnded = true;
    int calls = 0;
    for (; isEnded && !HasFailure(); calls += saves.stride) {
      SCOPED_TRACE(calls);
      Pack& pack = StartPack();
      FileCallTrap trap(pack.program());
      saves.saveWell(pack);
      saves.begin(pack);
      trap.EndAfter(calls);
      saves.finish(pack);
      WaitUntil("the end of the save",
                [&] { return !pack.program().IsRunning() || saves.isDone(pack); });
      isEnded = !pack.program().IsRunning();
      EXPECT_EQ(isEnded ? pack.program().WaitForEnd() : FileCallTrap::ExitCode,
                FileCallTrap::ExitCode);
      saves.look();
    }
    EXPECT_GT(calls, 5);
    RecordProperty("calls", calls);
  }
};

TEST_F(EndedWhileSaving, ARecordIsDeletedOrNot) {
  const std::string file = gameFolder() + "\\highscore.cfg";
  const auto names = NamesIn(gameFolder());
  std::vector<std::string> records;
  for (int i = 100; i < 200; ++i) records.push_back("track" + std::to_string(i) + "=72345");
  const auto expected = [&records](size_t deleted) {
    std::string bytes;
    for (size_t i = deleted; i < records.size(); ++i) bytes += records[i] + "\r\n";
    return bytes;
  };
  size_t deleted = 0;
  WriteFile(file, expected(0));
  Window list(nullptr);  // of the viewer
  EndAtEachCall(
      {.saveWell =
           [&](Pack& pack) {
             pack.ChooseMenu({"Game", "Record Viewer"});
             list = pack.WaitForWindow("Record Viewer").control("Select a track:");
             pack.Press("Alt+D");
             pack.AnswerBox("Y");
             ++deleted;
             pack.WaitForWindow("Record Viewer");
             EXPECT_EQ(list.rows().size(), records.size() - deleted);
             EXPECT_EQ(ReadFile(file), expected(deleted));
             EXPECT_EQ(NamesIn(gameFolder()), names);
           },
       .begin =
           [](Pack& pack) {
             pack.Press("Alt+D");
             pack.WaitForBox();
           },
       .finish = [](Pack& pack) { pack.AnswerBox("Y"); },
       .isDone = [&](Pack&) { return list.rows().size() == records.size() - deleted - 1; },
       .look =
           [&] {
             const std::string found = ReadFile(file);
             EXPECT_THAT(found, AnyOf(expected(deleted), expected(deleted + 1)));
             if (found == expected(deleted + 1)) ++deleted;
           }});
}

TEST_F(EndedWhileSaving, ATrackIsTheOldOneOrTheNewOne) {
  const std::string folder = gameFolder() + "\\tracks";
  const std::string file = folder + "\\Race.trk";
  const std::string sunny = "-1\r\n0\r\n";
  const std::string rainy = "-1\r\n1\r\n";
  WriteFile(file, rainy);
  const auto names = NamesIn(folder);
  const auto begin = [](Pack& pack) {
    pack.ChooseMenu({"Track", "New"});
    pack.ChooseFile("Race");  // the dialog looks for no file of that name, and the pack asks
    pack.AnswerBox("Y");
    pack.WaitForWindow("SK2 Trackmaker by Orvane Interactive");
    pack.Press("Alt+S");
    pack.WaitForBox();
  };
  const auto isSaved = [](Pack&) {
    const Window front(GetForegroundWindow());
    return front.Exists() && front.text() == "Track saved.";
  };
  EndAtEachCall({.saveWell =
                     [&](Pack& pack) {
                       begin(pack);
                       pack.AnswerBox("Y");
                       EXPECT_EQ(pack.AnswerBox().title, "Track saved.");
                       EXPECT_EQ(ReadFile(file), sunny);
                       EXPECT_EQ(NamesIn(folder), names);
                     },
                 .begin = begin,
                 .finish = [](Pack& pack) { pack.AnswerBox("N"); },
                 .isDone = isSaved,
                 .look = [&] { EXPECT_THAT(ReadFile(file), AnyOf(sunny, rainy)); }});
}

// The track and its description are both there as they were, or the archive is there, whole.
TEST_F(EndedWhileSaving, APackagedTrackIsThereOrItsArchiveIs) {
  const std::string folder = gameFolder() + "\\tracks";
  const std::string archive = folder + "\\Race.zip";
  // In the order in which they are packed, in the small letters that packaging gives them.
  const std::vector<Packed> sources = {{"race.wav", std::string(3000, 'w')},
                                       {"race.trk", "-1\r\n0\r\n"}};
  const auto putSources = [&] {
    for (const auto& [name, bytes] : sources) WriteFile(folder + "\\" + name, bytes);
    DeleteFileA(archive.c_str());
  };
  putSources();
  const auto names = NamesIn(folder);
  const auto begin = [](Pack& pack) {
    pack.ChooseMenu({"Track", "Package"});
    pack.WaitForFileDialog();
  };
  const auto finish = [](Pack& pack) { pack.ChooseFile("Race.trk"); };
  EndAtEachCall({.saveWell =
                     [&](Pack& pack) {
                       putSources();
                       begin(pack);
                       finish(pack);
                       EXPECT_EQ(pack.AnswerBox().title, "Congratulations!");
                       EXPECT_EQ(Unpacked(archive), sources);
                       EXPECT_FALSE(Exists(folder + "\\Race.wav"));
                       putSources();
                       EXPECT_EQ(NamesIn(folder), names) << "no side file stays";
                     },
                 .begin = begin,
                 .finish = finish,
                 .isDone =
                     [](Pack&) {
                       const Window front(GetForegroundWindow());
                       return front.Exists() && front.text() == "Congratulations!";
                     },
                 .look =
                     [&] {
                       if (Exists(archive)) {
                         EXPECT_EQ(Unpacked(archive), sources);
                         return;
                       }
                       for (const auto& [name, bytes] : sources) {
                         EXPECT_EQ(ReadFile(folder + "\\" + name), bytes);
                       }
                     },
                 .stride = 4});
}

}  // namespace
}  // namespace E2e
