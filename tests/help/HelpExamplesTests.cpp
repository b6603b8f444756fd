// The examples of vehicles and tracks in the help: the program answers as the help says it does.
#include <gmock/gmock.h>

#include "app/Start.h"
#include "machine/simulated/Machine.h"
#include "tests/SimulatedGame.h"
#include "tests/help/HelpFolder.h"

namespace {

using HelpFolder::Read;

const std::string Game = "C:\\Games\\Skidrun2";

struct Example {
  std::string bytes;   // with the line ends of a text file on Windows
  std::string answer;  // title and text of the box
};

std::vector<Example> ExamplesIn(const std::string& page, const std::string& kind) {
  const std::regex pattern("<pre class=\"" + kind +
                           "\">([^<]*)</pre>\\s*<p>The pack answers: <samp>([^<]*)</samp></p>");
  const std::string text = HelpFolder::BytesOf(page);
  std::vector<Example> examples;
  for (std::sregex_iterator it(text.begin(), text.end(), pattern), end; it != end; ++it) {
    examples.push_back(
        {std::regex_replace((*it)[1].str(), std::regex("\n"), "\r\n"), Read((*it)[2])});
  }
  EXPECT_EQ(examples.size(), HelpFolder::Matches(text, "<(pre) class").size())
      << "an example in " << page << " without its answer";
  return examples;
}

// As a user does it: the file is chosen in the dialog, and a box tells.
std::string AnswerTo(const std::string& bytes, const std::string& path,
                     const std::vector<std::string>& menu) {
  Simulated::Machine machine;
  InstallGame(machine, Game);
  machine.files.Put(path, bytes);
  // The sounds that lie beside the vehicle.
  const std::regex sound("sound=([^\r]*\\.wav)");
  for (std::sregex_iterator it(bytes.begin(), bytes.end(), sound), end; it != end; ++it) {
    machine.files.Put(path.substr(0, path.rfind('\\') + 1) + (*it)[1].str(), "");
  }
  StartPack();
  machine.user.ChoosesFile(path);
  machine.user.ChoosesMenu(menu);
  const Simulated::Box box = machine.user.LastBox();
  return box.title + ": " + box.text;
}

TEST(HelpExamples, VehiclesAreAnsweredAsTheHelpSays) {
  const auto examples = ExamplesIn("vehicle-format.html", "vhc");
  EXPECT_GE(examples.size(), 5U);
  for (const auto& [bytes, answer] : examples) {
    EXPECT_EQ(AnswerTo(bytes, Game + "\\vehicles\\Van\\Van.vhc", {"Vehicle", "Check .vhc file"}),
              answer);
  }
}

TEST(HelpExamples, TracksAreAnsweredAsTheHelpSays) {
  const auto examples = ExamplesIn("track-format.html", "trk");
  EXPECT_GE(examples.size(), 4U);
  for (const auto& [bytes, answer] : examples) {
    EXPECT_EQ(AnswerTo(bytes, Game + "\\tracks\\hill.trk", {"Track", "Check .trk file"}), answer);
  }
}

// The tables of numbers are those of the program.
TEST(HelpExamples, TheNumbersOfCurvesAndSurfacesAreThoseOfTheEditor) {
  std::vector<std::string> rows;
  {
    Simulated::Machine machine;
    InstallGame(machine, Game);
    StartPack();
    machine.user.ChoosesFile("new");
    machine.user.ChoosesMenu({"Track", "New"});
    machine.user.Presses("Enter");
    for (const Platform::Control* control : Platform::ActiveForm()->controls()) {
      if (control->kind() != Platform::Control::Kind::ListBox) continue;
      const auto& list = static_cast<const Platform::ListBox&>(*control);
      for (int i = 0; i < list.count(); ++i) {
        rows.push_back("<tr><td>" + std::to_string(i) + "</td><td>" + list.row(i) + "</td></tr>");
      }
    }
  }
  EXPECT_EQ(rows.size(), 17U);
  const std::string page = HelpFolder::BytesOf("track-format.html");
  for (const std::string& row : rows) EXPECT_THAT(page, testing::HasSubstr(row));
}

}  // namespace
