// The machine of the console programs on Linux, as the contract tests ask for it. What it prepares
// and tells comes from the C++ library, which minds letter case and knows no code page.
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "base/PerRun.h"
#include "platform/Characters.h"
#include "tests/machine/TestMachine.h"

namespace TestMachine {

namespace {

namespace fs = std::filesystem;

constexpr fs::perms AnyMayWrite =
    fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;

// With a capital letter and a small one in each folder on the way, so that paths in another letter
// case lead there only if it is disregarded.
fs::path& Scratch() {
  static fs::path scratch;
  return scratch;
}

fs::path HostPath(std::string path) {
  std::replace(path.begin(), path.end(), '\\', '/');
  return Platform::ToUtf8(path);
}

}  // namespace

void SetUp() {
  std::string name = (fs::temp_directory_path() / "SK2Contract-XXXXXX").string();
  Scratch() = mkdtemp(name.data());
}

void TearDown() {
  RunObjects::End();
  fs::remove_all(Scratch());
}

std::string ScratchFolder() {
  std::string folder = Scratch().string();
  std::replace(folder.begin(), folder.end(), '/', '\\');
  return folder;
}

void PutFile(const std::string& path, const std::string& bytes) {
  std::ofstream file(HostPath(path), std::ios::binary);
  file << bytes;
  EXPECT_TRUE(file.flush()) << path;
}

void PutFolder(const std::string& path) {
  fs::create_directory(HostPath(path));
}

std::optional<std::string> BytesOf(const std::string& path) {
  std::ifstream file(HostPath(path), std::ios::binary);
  if (!file) return std::nullopt;
  return std::string(std::istreambuf_iterator<char>(file), {});
}

std::vector<std::string> NamesIn(const std::string& folder) {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(HostPath(folder))) {
    names.push_back(Platform::FromUtf8(entry.path().filename().string()));
  }
  std::sort(names.begin(), names.end());
  return names;
}

void SetAttributes(const std::string& path, int attributes) {
  fs::permissions(HostPath(path), AnyMayWrite,
                  attributes & ReadOnly ? fs::perm_options::remove : fs::perm_options::add);
}

int AttributesOf(const std::string& path) {
  const fs::perms rights = fs::status(HostPath(path)).permissions();
  return (rights & AnyMayWrite) == fs::perms::none ? ReadOnly : 0;
}

bool RefuseNewFiles(const std::string&) {
  return false;
}

std::string FolderOfExecutable() {
  std::string folder = fs::read_symlink("/proc/self/exe").parent_path().string();
  std::replace(folder.begin(), folder.end(), '/', '\\');
  return folder;
}

std::string NameOfExecutable() {
  return "posix-contracts";
}

Platform::ProgramVersion VersionOfExecutable() {
  return {};
}

// No other program can hold a file on this machine, and numbers have one form: the contracts that
// need more are left out by PosixMachineTests.cpp.
void Hold(const std::string& path, Sharing) {
  ADD_FAILURE() << "nothing holds " << path;
}
void LetGo(const std::string&) {}
OwnTemporaryFolder::OwnTemporaryFolder() = default;
OwnTemporaryFolder::~OwnTemporaryFolder() = default;
void SetSeparators(const std::string& decimal, const std::string& thousands) {
  EXPECT_EQ(decimal + thousands, ".,");
}

}  // namespace TestMachine
