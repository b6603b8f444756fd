// The services of the contract tests that are neither files nor windows, and what stands around
// each test.
#include "tests/machine/RealMachine.h"

#include <oleauto.h>

#include <array>

#include "base/PerRun.h"
#include "tests/machine/TestMachine.h"

namespace TestMachine {

namespace {

constexpr char Subkey[] = "Software\\SK2PackContract";

struct Separator {
  LCTYPE type;
  std::string value;  // before the test
};

std::array<Separator, 4>& Separators() {
  const auto of = [](LCTYPE type) {
    char value[8] = "";
    GetLocaleInfoA(LOCALE_USER_DEFAULT, type, value, sizeof value);
    return Separator{type, value};
  };
  static std::array<Separator, 4> separators{of(LOCALE_SDECIMAL), of(LOCALE_SMONDECIMALSEP),
                                             of(LOCALE_STHOUSAND), of(LOCALE_SMONTHOUSANDSEP)};
  return separators;
}

void SetSeparator(LCTYPE type, const std::string& value) {
  EXPECT_TRUE(SetLocaleInfoA(LOCALE_USER_DEFAULT, type, value.c_str())) << value;
}

// The system's number parser remembers the separators of the locale that it was asked for last.
void LetParserForget() {
  wchar_t one[] = L"1";
  double value = 0;
  VarR8FromStr(one, MAKELCID(MAKELANGID(LANG_FRENCH, SUBLANG_FRENCH), SORT_DEFAULT), 0, &value);
}

REGSAM AccessOf(Platform::RegistryView view) {
  return view == Platform::RegistryView::Of32Bit ? KEY_WOW64_32KEY : KEY_WOW64_64KEY;
}

HKEY KeyOf(Platform::RegistryRoot root) {
  return root == Platform::RegistryRoot::LocalMachine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
}

DWORD TypeOf(Platform::RegistryType type) {
  switch (type) {
    case Platform::RegistryType::String: return REG_SZ;
    case Platform::RegistryType::Number: return REG_DWORD;
    case Platform::RegistryType::Other: return REG_BINARY;
  }
  return REG_NONE;
}

std::string PathOfExecutable() {
  char path[MAX_PATH + 1];
  return {path, GetModuleFileNameA(nullptr, path, sizeof path)};
}

}  // namespace

void SetUp() {}

void TearDown() {
  RunObjects::End();
  RealMachine::EmptyQueue();
  RealMachine::ForgetModalWindows();
  RealMachine::PutBackRoom();
  RealMachine::PutBackSound();
  RealMachine::PutBackMicrophones();
  RealMachine::PutBackFiles();
  RealMachine::PutBackSeparators();
  RealMachine::PutBackRegistry();
  RealMachine::PutBackDocuments();
  RealMachine::PutBackWeb();
  RealMachine::PutBackClipboard();
}

void SetSeparators(const std::string& decimal, const std::string& thousands) {
  Separators();  // remembers what was set before
  SetSeparator(LOCALE_SDECIMAL, decimal);
  SetSeparator(LOCALE_SMONDECIMALSEP, decimal);
  SetSeparator(LOCALE_STHOUSAND, thousands);
  SetSeparator(LOCALE_SMONTHOUSANDSEP, thousands);
  LetParserForget();
}

std::string ScratchSubkey() {
  return Subkey;
}

void PutRegistryValue(Platform::RegistryRoot root, Platform::RegistryView view,
                      const std::string& subkey, const std::string& name,
                      const Platform::RegistryValue& value) {
  HKEY key = nullptr;
  ASSERT_EQ(RegCreateKeyExA(KeyOf(root), subkey.c_str(), 0, nullptr, 0,
                            KEY_SET_VALUE | AccessOf(view), nullptr, &key, nullptr),
            ERROR_SUCCESS);
  // Behind a text without a NUL the system looks for one, and would store it too.
  const std::string bytes = value.bytes + "x";
  EXPECT_EQ(RegSetValueExA(key, name.c_str(), 0, TypeOf(value.type),
                           reinterpret_cast<const BYTE*>(bytes.data()),
                           static_cast<DWORD>(value.bytes.size())),
            ERROR_SUCCESS);
  RegCloseKey(key);
}

std::string FolderOfExecutable() {
  const std::string path = PathOfExecutable();
  return path.substr(0, path.rfind('\\'));
}

std::string NameOfExecutable() {
  return "contract-tests";
}

// As the build gives it to the test program.
Platform::ProgramVersion VersionOfExecutable() {
  return {3, 14, 15, "Skidrun2 Utility Pack", "Contract tests of the utility pack"};
}

bool HasMutex(const std::string& name) {
  const HANDLE mutex = OpenMutexA(SYNCHRONIZE, FALSE, name.c_str());
  if (mutex) CloseHandle(mutex);
  return mutex != nullptr;
}

// As RealMachine.rc declares it.
std::string NameOfResource() {
  return "ContractSound";
}

std::string BytesOfResource() {
  return {"RIFF\0\xFFsound\r\n", 13};
}

}  // namespace TestMachine

void RealMachine::PutBackSeparators() {
  for (const auto& [type, value] : TestMachine::Separators()) {
    TestMachine::SetSeparator(type, value);
  }
  TestMachine::LetParserForget();
}

void RealMachine::PutBackRegistry() {
  for (const HKEY root : {HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER}) {
    for (const REGSAM view : {KEY_WOW64_32KEY, KEY_WOW64_64KEY}) {
      // With the keys below it, for which another call is needed.
      HKEY key = nullptr;
      if (RegOpenKeyExA(root, TestMachine::Subkey, 0, KEY_ALL_ACCESS | view, &key) != 0) continue;
      RegDeleteTreeA(key, nullptr);
      RegCloseKey(key);
      RegDeleteKeyExA(root, TestMachine::Subkey, view, 0);
    }
  }
}
