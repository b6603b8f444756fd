// The operations of orec.h: what they are given is judged here, and nothing is thrown out of the
// library.
#include <cstring>
#include <map>
#include <memory>
#include <mutex>
#include <new>
#include <string>
#include <utility>

#include "orec/CharacterCut.h"
#include "orec/InputNames.h"
#include "orec/Recording.h"
#include "orec/orec.h"

namespace ORec {

namespace {

using Recordings = std::map<int32_t, std::shared_ptr<Recording>>;

// What is open between ORec_Init and ORec_Free.
class Library {
 public:
  void Init() {
    const std::lock_guard lock(mutex_);
    ++inits_;
  }

  bool IsReady() {
    const std::lock_guard lock(mutex_);
    return inits_ > 0;
  }

  int32_t Free() {
    Recordings left;
    {
      const std::lock_guard lock(mutex_);
      if (inits_ == 0) return ORec_NotInitialised;
      if (--inits_ == 0) left = std::exchange(recordings_, {});
    }
    for (const auto& [handle, recording] : left) recording->Close();
    return 0;
  }

  int32_t Add(std::shared_ptr<Recording> recording) {
    const std::lock_guard lock(mutex_);
    recordings_[++lastHandle_] = std::move(recording);
    return lastHandle_;
  }

  // Null if there is none.
  std::shared_ptr<Recording> Find(int32_t handle) {
    const std::lock_guard lock(mutex_);
    const auto found = recordings_.find(handle);
    return found == recordings_.end() ? nullptr : found->second;
  }

  std::shared_ptr<Recording> Remove(int32_t handle) {
    const std::lock_guard lock(mutex_);
    auto node = recordings_.extract(handle);
    return node ? std::move(node.mapped()) : nullptr;
  }

 private:
  std::mutex mutex_;
  int inits_ = 0;
  int32_t lastHandle_ = 0;
  Recordings recordings_;
};

// Never destroyed: when a process ends its threads are gone already, maybe with a lock.
Library& TheLibrary() {
  static Library& library = *new Library;
  return library;
}

template <class Action>
int32_t Guarded(Action action) {
  try {
    return action();
  } catch (const std::bad_alloc&) {
    return ORec_DeviceFailed;
  }
}

template <class Action>
int32_t With(const std::shared_ptr<Recording>& recording, Action action) {
  return recording ? action(*recording) : int32_t{ORec_BadArgument};
}

int32_t OpenFile(const char* path, int32_t rate, int32_t channels, int32_t device) {
  constexpr int32_t LowestRate = 8'000;
  constexpr int32_t HighestRate = 192'000;
  if (!TheLibrary().IsReady()) return ORec_NotInitialised;
  if (!path || !*path || rate < LowestRate || rate > HighestRate || channels < 1 || channels > 2 ||
      device < ORec_DefaultDevice) {
    return ORec_BadArgument;
  }
  auto recording = std::make_shared<Recording>(Format{rate, channels}, device);
  if (const int32_t failure = recording->Open(path)) {
    recording->Close();
    return failure;
  }
  return TheLibrary().Add(std::move(recording));
}

int32_t WriteName(int32_t device, char* buffer, int32_t size) {
  if (!buffer || size <= 0) return 0;
  buffer[0] = '\0';
  if (!TheLibrary().IsReady()) return 0;
  const std::string name = InputName(device);
  const size_t length = WholeCharacters(name, static_cast<size_t>(size) - 1);
  std::memcpy(buffer, name.data(), length);
  buffer[length] = '\0';
  return static_cast<int32_t>(length);
}

}  // namespace

}  // namespace ORec

using namespace ORec;

int32_t OREC_CALL ORec_Init() {
  TheLibrary().Init();
  return 0;
}

int32_t OREC_CALL ORec_GetInputDeviceCount() {
  const int32_t count = Guarded([] { return TheLibrary().IsReady() ? InputCount() : 0; });
  return count > 0 ? count : 0;
}

int32_t OREC_CALL ORec_GetInputDeviceName(int32_t device, char* buffer, int32_t size) {
  const int32_t length = Guarded([&] { return WriteName(device, buffer, size); });
  return length > 0 ? length : 0;
}

int32_t OREC_CALL ORec_OpenFile(const char* path, int32_t rate, int32_t channels, int32_t device) {
  return Guarded([&] { return OpenFile(path, rate, channels, device); });
}

int32_t OREC_CALL ORec_StartRecording(int32_t handle) {
  return Guarded([&] {
    return With(TheLibrary().Find(handle), [](Recording& recording) { return recording.Start(); });
  });
}

int32_t OREC_CALL ORec_StopRecording(int32_t handle) {
  return Guarded([&] {
    return With(TheLibrary().Find(handle), [](Recording& recording) { return recording.Stop(); });
  });
}

int32_t OREC_CALL ORec_IsRecording(int32_t handle) {
  const auto recording = TheLibrary().Find(handle);
  return recording && recording->IsRecording() ? 1 : 0;
}

int32_t OREC_CALL ORec_CloseFile(int32_t handle) {
  return Guarded([&] {
    return With(TheLibrary().Remove(handle),
                [](Recording& recording) { return recording.Close(); });
  });
}

int32_t OREC_CALL ORec_Free() {
  return Guarded([] { return TheLibrary().Free(); });
}
