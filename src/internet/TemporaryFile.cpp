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

std::string TemporaryFile::Read() const {
  const auto stamp = Platform::StampOf(path_);
  if (stamp && stamp->size > LargestRead) {
    throw RuntimeError(RuntimeError::Overflow, InternetTexts.DownloadTooLarge, path_);
  }
  std::optional<std::string> bytes = Platform::ReadWholeFile(path_);
  if (!bytes) throw RuntimeError(RuntimeError::FileNotFound, path_);
  return *std::move(bytes);
}
