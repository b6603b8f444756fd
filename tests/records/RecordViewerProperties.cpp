// Random record files under random deletions, beside a plain model of what the viewer promises.
#include <algorithm>
#include <string>
#include <vector>

#include "tests/RandomText.h"
#include "tests/records/RecordStory.h"

namespace {

class RecordViewerProperties : public RecordStory {
 protected:
  // A line of a record file: mostly sound, sometimes blank or odd.
  std::string RandomLine() {
    if (!random.OneIn(3)) {
      return "t" + std::to_string(random.Below(50)) + "=" + std::to_string(random.Below(5000000));
    }
    std::string line;
    for (size_t i = random.Below(5); i > 0; --i) {
      line += random.OneOf({" ", "=", "a", "track", "&", ";", "\t", "\xe4", "1000", "-1", "1e9",
                            "x", "&HF", "\n", "99999999999"});
    }
    return line;
  }

  RandomText random{20261121};
};

// What the viewer keeps of the lines of a file: without blanks at the ends, and without blank ones.
std::vector<std::string> KeptOf(const std::vector<std::string>& lines) {
  std::vector<std::string> kept;
  for (std::string line : lines) {
    while (line.ends_with(' ')) line.pop_back();
    while (line.starts_with(' ')) line.erase(0, 1);
    if (!line.empty()) kept.push_back(line);
  }
  return kept;
}

std::string Joined(const std::vector<std::string>& lines) {
  std::string joined;
  for (const std::string& line : lines) joined += line + "\r\n";
  return joined;
}

TEST_F(RecordViewerProperties, RandomDeletionsKeepFileAndRowsAsPositionsSay) {
  for (int round = 0; round < 300; ++round) {
    std::vector<std::string> lines;
    for (size_t i = random.Below(12); i > 0; --i) lines.push_back(RandomLine());
    const std::string file = Joined(lines);
    PutRecords(file);
    std::vector<std::string> records = KeptOf(lines);
    std::vector<std::string> rows;
    for (const std::string& record : records) {
      if (const size_t equals = record.find('='); equals != std::string::npos) {
        rows.push_back(record.substr(0, equals));
      }
    }

    OpenViewer();
    ASSERT_EQ(Records(), file);
    if (records.empty()) {
      ASSERT_THAT(user.LastBox(),
                  Shows(Platform::Icon::Information, "There are currently no records to view."));
      ExpectMainWindow();
      continue;
    }
    std::string expectedFile = file;
    size_t selected = 0;
    for (size_t step = random.Below(15); step > 0; --step) {
      if (rows.empty()) {
        ASSERT_EQ(HearsTracks(), "Select a track:, list, empty");
        user.Presses("Alt+D");  // asks nothing
        ASSERT_EQ(Records(), expectedFile);
        break;
      }
      ASSERT_EQ(HearsTracks(), "Select a track:, list, " + rows[selected] + ", " +
                                   std::to_string(selected + 1) + " of " +
                                   std::to_string(rows.size()));
      switch (random.Below(4)) {
        case 0:
          user.Presses("Down");
          selected = std::min(selected + 1, rows.size() - 1);
          break;
        case 1:
          user.Presses("Up");
          selected -= selected > 0 ? 1 : 0;
          break;
        case 2:
          user.AnswersNo();
          user.Presses("Alt+D");
          break;
        default:
          user.AnswersYes();
          user.Presses("Alt+D");
          records.erase(records.begin() + static_cast<std::ptrdiff_t>(selected));
          rows.erase(rows.begin() + static_cast<std::ptrdiff_t>(selected));
          if (selected > 0 && selected == rows.size()) --selected;
          expectedFile = Joined(records);
      }
      ASSERT_EQ(Records(), expectedFile);
    }
    user.Presses("Escape");
    ExpectMainWindow();
  }
}

}  // namespace
