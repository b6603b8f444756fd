#include "orec/TargetFile.h"

#include "orec/win32/CodePage.h"
#include "orec/win32/System.h"

namespace ORec {

struct TargetFile::Native {
  HANDLE file = INVALID_HANDLE_VALUE;
};

TargetFile::TargetFile() : native_(std::make_unique<Native>()) {}

TargetFile::~TargetFile() {
  if (native_->file != INVALID_HANDLE_VALUE) CloseHandle(native_->file);
}

std::unique_ptr<TargetFile> TargetFile::Open(const std::string& path) {
  std::unique_ptr<TargetFile> opened(new TargetFile);
  HANDLE& file = opened->native_->file;
  // Opened and emptied rather than made anew: the system refuses that for a file that is hidden.
  file = CreateFileW(Widen(path).c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                     OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return nullptr;
  // A path such as "con" is a device, which would take all that is written.
  if (GetFileType(file) != FILE_TYPE_DISK || !SetEndOfFile(file)) return nullptr;
  return opened;
}

bool TargetFile::WriteAt(uint64_t place, std::string_view bytes) {
  LARGE_INTEGER where;
  where.QuadPart = static_cast<LONGLONG>(place);
  DWORD written = 0;
  return SetFilePointerEx(native_->file, where, nullptr, FILE_BEGIN) &&
         WriteFile(native_->file, bytes.data(), static_cast<DWORD>(bytes.size()), &written,
                   nullptr) &&
         written == bytes.size();
}

}  // namespace ORec
