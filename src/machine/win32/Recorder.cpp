#include "platform/Recorder.h"

#include "machine/win32/RecordingLibrary.h"

namespace Platform {

namespace {

RecordingFailure Meant(int32_t result) {
  if (result >= 0) return RecordingFailure::None;
  switch (result) {
    case ORec_NoDevice: return RecordingFailure::NoDevice;
    case ORec_DeviceForbidden: return RecordingFailure::Forbidden;
    case ORec_DeviceInUse: return RecordingFailure::InUse;
    case ORec_FileFailed: return RecordingFailure::FileFailed;
    default: return RecordingFailure::DeviceFailed;
  }
}

// The library's buffer size for a name, as its other users have it.
constexpr int32_t NameSize = 255;

}  // namespace

std::vector<std::string> RecordingDevices() {
  const RecordingLibrary* library = FindRecordingLibrary();
  if (!library) return {};
  library->init();
  std::vector<std::string> names;
  const int32_t count = library->count();
  for (int32_t i = 0; i < count; ++i) {
    char name[NameSize] = "";
    library->name(i, name, sizeof name);
    names.emplace_back(name);
  }
  library->free();
  return names;
}

// From the library's init to its free.
struct Recorder::Take {
  explicit Take(const RecordingLibrary& used) : library(used) { library.init(); }
  ~Take() { library.free(); }
  Take(const Take&) = delete;
  Take& operator=(const Take&) = delete;

  const RecordingLibrary& library;
  int32_t handle = 0;
};

Recorder::Recorder() = default;

Recorder::~Recorder() {
  Stop();
}

RecordingFailure Recorder::Start(const std::string& path, int rate, int channels, int device) {
  Stop();
  const RecordingLibrary* library = FindRecordingLibrary();
  if (!library) return RecordingFailure::NoDevice;
  auto take = std::make_unique<Take>(*library);
  take->handle = library->open(path.c_str(), rate, channels, device);
  if (take->handle < 0) return Meant(take->handle);
  const int32_t result = library->start(take->handle);
  if (result < 0) {
    library->close(take->handle);
    return Meant(result);
  }
  take_ = std::move(take);
  return RecordingFailure::None;
}

bool Recorder::IsRecording() const {
  return take_ && take_->library.isRecording(take_->handle) == 1;
}

RecordingFailure Recorder::Stop() noexcept {
  if (!take_) return RecordingFailure::None;
  const int32_t result = take_->library.stop(take_->handle);
  take_->library.close(take_->handle);
  take_.reset();
  return Meant(result);
}

}  // namespace Platform
