// A story can make every call of a service fail whose contract says that it may. Read from the
// sources, so that a new call cannot forget it.
#include <gmock/gmock.h>

#include <filesystem>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include "tests/ProjectFile.h"
#include "tests/Texts.h"

namespace {

namespace fs = std::filesystem;

// The functions of a header whose comments say "Fails", methods with their class:
// "FileReader::Read". A constructor is called as its class.
std::vector<std::string> CallsThatFail(const std::string& header) {
  static const std::regex classStart(R"(^class (\w+) .*\{$)");
  static const std::regex declaration(
      R"(^ *(?:explicit |static )?(?:[\w:<>&*, ]+ )?[&*]?(\w+)\(.*)");
  // A system without one of its own parts is beyond what stories tell.
  static const std::regex saysFails(R"(\bFails\b(?!.*only where the system lacks))");
  std::vector<std::string> calls;
  std::string comment;
  std::string inClass;
  std::istringstream lines(header);
  for (std::string line; std::getline(lines, line);) {
    std::smatch found;
    const size_t text = line.find_first_not_of(' ');
    if (text != std::string::npos && line.compare(text, 2, "//") == 0) {
      comment += line.substr(text + 2);
      continue;
    }
    if (std::regex_match(line, found, classStart)) {
      inClass = found[1];
    } else if (line == "};") {
      inClass.clear();
    } else if (std::regex_match(line, found, declaration) &&
               std::regex_search(comment, saysFails)) {
      const std::string name = found[1];
      calls.push_back(inClass.empty() || name == inClass ? name : inClass + "::" + name);
    }
    comment.clear();
  }
  return calls;
}

TEST(Faults, CallsThatFailAreFoundInAHeader) {
  EXPECT_THAT(CallsThatFail("// Opens it.\n"
                            "// Fails with DiskFull.\n"
                            "std::optional<int> Open(const std::string& path);\n"
                            "// True if it is open.\n"
                            "bool IsOpen();\n"
                            "class Reader final {\n"
                            " public:\n"
                            "  // Fails as Open does.\n"
                            "  explicit Reader(int file);\n"
                            "  // Never throws.\n"
                            "  void Stop();\n"
                            "  // Reads. Fails now and then.\n"
                            "  size_t Read(char* buffer,\n"
                            "              size_t size);\n"
                            "};\n"),
              testing::ElementsAre("Open", "Reader", "Reader::Read"));
}

TEST(Faults, EveryCallThatMayFailCanBeMadeToFail) {
  int count = 0;
  for (const char* floor : {"src/platform", "src/ui"}) {
    for (const auto& entry : fs::directory_iterator(ProjectFile::Root / floor)) {
      if (entry.path().extension() != ".h") continue;
      const std::string module = entry.path().stem().string();
      const std::string source = ProjectFile::BytesOf("src/machine/simulated/" + module + ".cpp");
      for (const std::string& call : CallsThatFail(ProjectFile::BytesOf(entry.path()))) {
        const std::string name = call.substr(call.rfind(':') + 1);
        const bool isOfTheMachine = Texts::Contains(source, " " + call + "(") ||
                                    Texts::Contains(source, name + "::" + name + "(");
        if (!isOfTheMachine) continue;  // what it fails at is what it was given
        EXPECT_TRUE(Texts::Contains(source, "\"" + call))
            << floor << "/" << module << ".h says that " << call << " may fail";
        ++count;
      }
    }
  }
  EXPECT_GT(count, 5);
}

}  // namespace
