#include "e2e/driver/Places.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "e2e/driver/Wait.h"

namespace E2e {

namespace {

// Removes a folder with all that is in it, write-protected files too. False if something is left.
bool Remove(const std::string& folder) {
  // A program that has just been ended may hold its own file for a moment.
  return ComesTrue([&] {
    // Write-protected files are not removed.
    std::error_code failure;
    std::filesystem::recursive_directory_iterator entry(folder, failure);
    for (; !failure && entry != end(entry); entry.increment(failure)) {
      SetFileAttributesW(entry->path().c_str(), FILE_ATTRIBUTE_NORMAL);
    }
    std::filesystem::remove_all(folder, failure);
    return !failure;
  });
}

}  // namespace

Places& Given() {
  static Places places;
  return places;
}

ScratchFolder::ScratchFolder() {
  static int count = 0;
  char temporary[MAX_PATH] = "";
  GetTempPathA(sizeof temporary, temporary);
  path_ = std::string(temporary) + "sk2pack-e2e-" + std::to_string(GetCurrentProcessId()) + "-" +
          std::to_string(++count);
  // Numbers of processes are given out again: an interrupted run may have left a folder of this
  // name.
  EXPECT_TRUE(Remove(path_)) << path_ << " cannot be removed";
  std::filesystem::create_directories(path_);
}

ScratchFolder::~ScratchFolder() {
  EXPECT_TRUE(Remove(path_)) << path_ << " cannot be removed";
}

void CopyFolder(const std::string& from, const std::string& to) {
  std::filesystem::create_directories(to);
  std::filesystem::copy(
      from, to,
      std::filesystem::copy_options::recursive | std::filesystem::copy_options::overwrite_existing);
}

std::string ReadFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("cannot read " + path);
  return {std::istreambuf_iterator<char>(file), {}};
}

void WriteFile(const std::string& path, const std::string& bytes) {
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file << bytes;
  if (!file.flush()) throw std::runtime_error("cannot write " + path);
}

bool Exists(const std::string& path) {
  return GetFileAttributesA(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

std::vector<std::string> NamesIn(const std::string& folder) {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace E2e
