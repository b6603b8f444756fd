#include "orec/Recording.h"

#include <new>
#include <optional>
#include <thread>
#include <utility>

#include "orec/Channels.h"
#include "orec/TimeLimits.h"
#include "orec/Worker.h"
#include "orec/orec.h"

namespace ORec {

namespace {

// A second in all, so that no sound is lost while the disk is busy; and small ones, so that little
// is lost with the process.
constexpr size_t BufferCount = 20;
constexpr int BuffersPerSecond = 20;

// How often a recording looks whether it has to do something, when nothing wakes it.
constexpr std::chrono::milliseconds Tick{100};

int32_t FailureOf(Code code) {
  switch (code) {
    case Code::None: return 0;
    case Code::BadDevice:
    case Code::NoDriver: return ORec_NoDevice;
    case Code::Unspecified: return ORec_DeviceForbidden;
    case Code::InUse: return ORec_DeviceInUse;
  }
  return ORec_DeviceFailed;
}

}  // namespace

// --- For those who call ---

int32_t Recording::Open(const std::string& path) {
  Lock lock(mutex_);
  const bool hasThread = StartWorker([self = shared_from_this()] { self->Work(); });
  if (hasThread) {
    WaitWhile(Stage::Opening, TheLimits().opening, lock);
  } else {
    End(ORec_DeviceFailed);
    isClosed_ = true;
  }
  if (stage_ == Stage::Ready) {
    file_ = WaveWriter::Create(path, format_);
    if (!file_) End(ORec_FileFailed);
  }
  return failure_;
}

int32_t Recording::Start() {
  Lock lock(mutex_);
  if (stage_ == Stage::Ready) {
    stage_ = Stage::Starting;
    WaitWhile(Stage::Starting, TheLimits().starting, lock);
  }
  return failure_;
}

int32_t Recording::Stop() {
  Lock lock(mutex_);
  if (stage_ == Stage::Recording || stage_ == Stage::Starting) stage_ = Stage::Stopping;
  WaitWhile(Stage::Stopping, TheLimits().stopping, lock);
  return failure_;
}

bool Recording::IsRecording() {
  const Lock lock(mutex_);
  return stage_ == Stage::Recording;
}

int32_t Recording::Close() {
  const int32_t failure = Stop();
  Lock lock(mutex_);
  End(0);
  // The next one to open the device may not share it.
  changed_.wait_for(lock, TheLimits().closing, [this] { return isClosed_; });
  return failure;
}

void Recording::WaitWhile(Stage asked, std::chrono::milliseconds atMost, Lock& lock) {
  if (input_) input_->Wake();
  const bool isDone = changed_.wait_for(lock, atMost, [&] { return stage_ != asked; });
  if (!isDone) End(ORec_DeviceFailed);
}

void Recording::End(int32_t failure) {
  if (stage_ != Stage::Ended) failure_ = failure;
  stage_ = Stage::Ended;
  file_.reset();
  if (input_) input_->Wake();
  changed_.notify_all();
}

// --- On the thread ---

void Recording::Work() {
  try {
    UseDevice();
  } catch (const std::bad_alloc&) {
    Fail(ORec_DeviceFailed);
  }
  Lock lock(mutex_);
  auto input = std::move(input_);
  lock.unlock();
  input.reset();
  lock.lock();
  isClosed_ = true;
  changed_.notify_all();
}

void Recording::UseDevice() {
  std::unique_ptr<Input> input;
  if (const int32_t failure = OpenInput(input)) return Fail(failure);
  {
    const Lock lock(mutex_);
    input_ = std::move(input);
  }
  Done(Stage::Opening, Stage::Ready);
  for (;;) {
    const Stage wanted = Wanted();
    int32_t failure = 0;
    switch (wanted) {
      case Stage::Ended: return;
      case Stage::Starting:
        failure = Begin();
        if (!failure) Done(wanted, Stage::Recording);
        break;
      case Stage::Stopping:
        failure = Finish();
        if (!failure) Done(wanted, Stage::Ready);
        break;
      case Stage::Recording: failure = Listen(); break;
      case Stage::Opening:
      case Stage::Ready: input_->Wait(Tick); break;
    }
    if (failure) return Fail(failure);
  }
}

// A device that refuses the channels that are wanted has the others, or it refuses all: then it is
// what the system said of those that are wanted that counts.
int32_t Recording::OpenInput(std::unique_ptr<Input>& input) {
  int32_t failure = 0;
  for (const int channels : {format_.channels, 3 - format_.channels}) {
    opened_ = {format_.rate, channels};
    const size_t size = opened_.FrameSize() * static_cast<size_t>(opened_.rate / BuffersPerSecond);
    const Code code = Input::Open(device_, opened_, {BufferCount, size}, input);
    if (code == Code::None) return 0;
    if (!failure) failure = FailureOf(code);
    if (code == Code::BadDevice || code == Code::InUse) break;
  }
  return failure;
}

Recording::Stage Recording::Wanted() {
  const Lock lock(mutex_);
  return stage_;
}

void Recording::Done(Stage asked, Stage next) {
  const Lock lock(mutex_);
  if (stage_ == asked) stage_ = next;
  changed_.notify_all();
}

void Recording::Fail(int32_t failure) {
  const Lock lock(mutex_);
  End(failure);
}

int32_t Recording::Begin() {
  next_ = 0;
  given_ = 0;
  for (size_t i = 0; i < BufferCount; ++i) {
    if (input_->Give(i) != Code::None) return ORec_DeviceFailed;
    ++given_;
  }
  if (const Code code = input_->Start(); code != Code::None) return FailureOf(code);
  heard_ = Clock::now();
  return 0;
}

int32_t Recording::Listen() {
  input_->Wait(Tick);
  return Collect(true);
}

int32_t Recording::Finish() {
  // First what has come back already, since the next call may be the one that never returns.
  if (const int32_t failure = Collect(false)) return failure;
  // The buffer that is being filled comes back with what it has; some devices forget that when they
  // are reset.
  input_->Stop();
  if (const int32_t failure = Collect(false)) return failure;
  input_->Reset();
  if (const int32_t failure = Collect(false)) return failure;
  return given_ == 0 ? 0 : ORec_DeviceFailed;
}

int32_t Recording::Collect(bool gives) {
  bool hasSound = false;
  size_t taken = 0;
  for (; taken < BufferCount && given_ > 0; ++taken) {
    const std::optional<std::string_view> samples = input_->Take(next_);
    if (!samples) break;
    --given_;
    if (!samples->empty()) {
      hasSound = true;
      if (!Save(*samples)) return ORec_FileFailed;
    }
    const bool isGone = gives && input_->Give(next_) != Code::None;
    if (gives && !isGone) ++given_;
    next_ = (next_ + 1) % BufferCount;
    if (isGone) {
      // What it has filled before still counts.
      const int32_t failure = Collect(false);
      return failure ? failure : ORec_DeviceFailed;
    }
  }
  if (hasSound) heard_ = Clock::now();
  if (!gives) return 0;
  if (Clock::now() - heard_ > TheLimits().silence.load()) return ORec_DeviceFailed;
  // A device may hand back one empty buffer after the other, as fast as it gets them.
  if (taken > 0 && !hasSound) std::this_thread::sleep_for(Tick / 10);
  return 0;
}

bool Recording::Save(std::string_view samples) {
  const std::string wanted = WithChannels(samples, opened_.channels, format_.channels);
  std::unique_ptr<WaveWriter> file;
  {
    // Nobody else has it while it is written, so that a disk that takes its time holds up no one.
    const Lock lock(mutex_);
    file = std::move(file_);
  }
  // Closed without this thread: the device has answered too late.
  if (!file) return true;
  if (!file->Write(wanted)) return false;
  const Lock lock(mutex_);
  if (stage_ != Stage::Ended) file_ = std::move(file);
  return true;
}

}  // namespace ORec
