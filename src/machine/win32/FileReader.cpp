#include "machine/win32/FileHandles.h"
#include "platform/Files.h"
#include "platform/Paths.h"

namespace Platform {

struct FileReader::Open {
  OpenFile file;
};

FileReader::FileReader(const std::string& path) {
  CheckName(path);
  open_ = std::make_unique<Open>();
  // A file that another program is still writing is no missing one.
  open_->file = OpenFile(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_EXISTING,
                         FILE_FLAG_SEQUENTIAL_SCAN);
  if (!open_->file.IsOpen()) FailWith(open_->file.error(), path, Access::Reading);
}

FileReader::~FileReader() = default;
FileReader::FileReader(FileReader&&) noexcept = default;

size_t FileReader::Read(char* buffer, size_t size) {
  return open_->file.Read(buffer, size);
}

}  // namespace Platform
