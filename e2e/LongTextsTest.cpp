// Every window in a language whose texts are half as long again as the English ones.
#include <set>
#include <sstream>

#include "e2e/Openings.h"
#include "e2e/driver/PackTest.h"

namespace E2e {
namespace {

// Words of a length as those of other languages, in parentheses.
std::string Addition(size_t length) {
  std::string words = " (";
  for (size_t i = 0; i < length; i++) words += i % 12 == 11 ? ' ' : 'm';
  return words + ")";
}

// The translators' template with longer texts. Titles of windows are left, for it is by them that
// the windows are found.
std::string LongerTemplate() {
  std::set<std::string> titles;
  for (const Opening& opening : Openings()) titles.insert(opening.title);
  std::string file;
  std::istringstream lines(ReadFile(Given().pack + "\\languages\\template.lng"));
  for (std::string line; std::getline(lines, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    const std::string text = line.substr(line.find('=') + 1);
    file += line + (titles.count(text) ? "" : Addition(text.size() / 2)) + "\r\n";
  }
  return file;
}

class LongTexts : public PackTest, public testing::WithParamInterface<Opening> {};

// The rules themselves are checked wherever a window is waited for.
TEST_P(LongTexts, KeepEveryRule) {
  WriteFile(PutProgramFolder() + "\\sk2pack.lng", LongerTemplate());
  Pack& pack = StartPack();
  GetParam().open(pack);
  const Window window = pack.WaitForWindow(GetParam().title);
  int longTexts = 0;
  for (const Window& child : window.children()) longTexts += child.text().ends_with("m)");
  EXPECT_GT(longTexts, 0);
}

INSTANTIATE_TEST_SUITE_P(Windows, LongTexts, testing::ValuesIn(Openings()),
                         testing::PrintToStringParamName());

}  // namespace
}  // namespace E2e
