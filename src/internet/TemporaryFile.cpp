#include "internet/TemporaryFile.h"

#include <exception>
#include <optional>

#include "base/RuntimeError.h"
#include "internet/InternetTexts.h"
#include "platform/Executable.h"
#include "platform/Files.h"

TemporaryFile::TemporaryFile(const std::string& name)
    : path_(Platform::ProgramFolder() + "\\" + name) {}

TemporaryFile::~TemporaryFile() {
  try {
    Platform::RemoveFile(path_);
  } catch (const std::exception&) {
    // A scanner may hold it. The next download into it removes it first.
  }
}

std::string TemporaryFile::Read(const std::string& path) {
  const auto stamp = Platform::StampOf(path);
  if (stamp && stamp->size > LargestRead) {
    throw RuntimeError(RuntimeError::Overflow, InternetTexts.DownloadTooLarge, path);
  }
  std::optional<std::string> bytes = Platform::ReadWholeFile(path);
  if (!bytes) throw RuntimeError(RuntimeError::FileNotFound, path);
  return *std::move(bytes);
}
