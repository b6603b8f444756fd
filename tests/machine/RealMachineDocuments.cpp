// Documents of a kind of their own, which this very program opens: it then only notes what it was
// given.
#include <fstream>
#include <iterator>

#include "tests/machine/RealMachine.h"
#include "tests/machine/TestMachine.h"

namespace {

constexpr char Option[] = "--opened";
constexpr char Classes[] = "Software\\Classes\\";
constexpr char Extension[] = ".sk2contract";
constexpr char Class[] = "SK2PackContractDocument";

std::string KeyOfCommand() {
  return std::string(Classes) + Class + "\\shell\\open\\command";
}

void SetDefaultValue(const std::string& subkey, const std::string& text) {
  EXPECT_EQ(RegSetKeyValueA(HKEY_LOCAL_MACHINE, subkey.c_str(), nullptr, REG_SZ, text.c_str(),
                            static_cast<DWORD>(text.size() + 1)),
            ERROR_SUCCESS);
}

std::string OwnPath() {
  char path[MAX_PATH + 1];
  return {path, GetModuleFileNameA(nullptr, path, sizeof path)};
}

std::string NotePath() {
  return TestMachine::ScratchFolder() + "\\opened.txt";
}

}  // namespace

std::string TestMachine::DocumentExtension() {
  SetDefaultValue(std::string(Classes) + Extension, Class);
  SetDefaultValue(KeyOfCommand(),
                  "\"" + OwnPath() + "\" " + Option + " \"" + NotePath() + "\" \"%1\"");
  return Extension;
}

std::string TestMachine::OpenedDocument() {
  constexpr ULONGLONG PatienceMs = 20000;
  const ULONGLONG deadline = GetTickCount64() + PatienceMs;
  do {
    // Its name is there a moment before whoever renamed it lets go of it.
    std::ifstream note(NotePath(), std::ios::binary);
    if (note) return std::string(std::istreambuf_iterator<char>(note), {});
    SwitchToThread();
  } while (GetTickCount64() < deadline);
  return "nothing was opened";
}

bool RealMachine::WasStartedToOpen(int count, char** arguments) {
  if (count < 3 || std::string(arguments[1]) != Option) return false;
  const std::string note = arguments[2];
  {
    std::ofstream file(note + ".new", std::ios::binary);
    for (int i = 3; i < count; ++i) file << (i > 3 ? "|" : "") << arguments[i];
  }
  // Renamed when it is whole, for whoever waits for it.
  MoveFileA((note + ".new").c_str(), note.c_str());
  return true;
}

void RealMachine::PutBackDocuments() {
  RegDeleteTreeA(HKEY_LOCAL_MACHINE, (std::string(Classes) + Extension).c_str());
  RegDeleteTreeA(HKEY_LOCAL_MACHINE, (std::string(Classes) + Class).c_str());
}
