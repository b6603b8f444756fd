// What a sound does when its device fails. The same on every machine.
#include "platform/Sound.h"

#include <algorithm>
#include <vector>

#include "base/PerRun.h"
#include "base/RuntimeError.h"
#include "base/SoundTexts.h"
#include "platform/Clock.h"
#include "platform/SoundDevice.h"

namespace Platform {

namespace {

[[noreturn]] void FailWithoutSound() {
  throw RuntimeError(RuntimeError::DeviceError, SoundTexts.SoundNotAvailable);
}

// Memory that is lost again and again is not got back for ever.
constexpr int RestoringTries = 3;

// How much later than by the clock a sound may end, and how long it may take to begin.
constexpr double MarginSeconds = 1;

// The run's device with the sounds in its memory. The sounds share it, since they may go after the
// run has closed it.
class Device {
 public:
  bool IsOpen() const { return device_ != nullptr; }

  // True if it is open then.
  bool Open() {
    if (!device_ && !isOver_) device_ = SoundDevice::Open();
    return IsOpen();
  }

  // The sounds leave the old device before it goes. Those that were playing come back when they
  // are asked whether they play.
  bool OpenAnew() {
    Close();
    return Open();
  }

  // At the end of the run.
  void End() {
    isOver_ = true;
    Close();
  }

  // Null if it refuses.
  std::unique_ptr<SoundOnDevice> Make(const Wave& wave) {
    return device_ ? SoundOnDevice::Make(*device_, wave) : nullptr;
  }

  // The sounds that may have something in the device's memory.
  std::vector<std::unique_ptr<SoundOnDevice>*> sounds;

 private:
  void Close() {
    for (auto* sound : sounds) sound->reset();
    device_.reset();
  }

  std::unique_ptr<SoundDevice> device_;
  bool isOver_ = false;
};

struct RunsDevice {
  RunsDevice() = default;
  RunsDevice(const RunsDevice&) = delete;
  RunsDevice& operator=(const RunsDevice&) = delete;
  ~RunsDevice() { device->End(); }
  std::shared_ptr<Device> device = std::make_shared<Device>();
};

}  // namespace

void OpenSoundDevice() {
  if (!PerRun<RunsDevice>().device->Open()) FailWithoutSound();
}

bool IsSoundDeviceOpen() {
  return PerRun<RunsDevice>().device->IsOpen();
}

struct SoundBuffer::Sound {
 public:
  explicit Sound(Wave playable) : wave_(std::move(playable)), rate_(wave_.rate) {
    device_->sounds.push_back(&onDevice_);
  }
  ~Sound() { std::erase(device_->sounds, &onDevice_); }
  Sound(const Sound&) = delete;
  Sound& operator=(const Sound&) = delete;

  // False if the device cannot be had, or refuses.
  bool Prepare() {
    return device_->Open() && (IsOnDevice() || (device_->OpenAnew() && IsOnDevice()));
  }

  bool Play(Looping looping) {
    Stop();
    plays_ = true;
    isLooping_ = looping == Looping::Yes;
    restoringTriesLeft_ = RestoringTries;
    mayOpenDeviceAnew_ = true;
    return plays_ = Begin() || Resume(State());
  }

  void Stop() noexcept {
    plays_ = false;
    // A device that has gone away may refuse even this. What is no longer in its memory is silent.
    if (onDevice_ && !onDevice_->Stop()) onDevice_.reset();
  }

  bool IsPlaying() {
    if (!plays_) return false;
    const double passed = SteadySeconds() - begun_;
    const double length = wave_.Seconds() * wave_.rate / rate_;
    if (!isLooping_ && passed > length + MarginSeconds) {
      Stop();
      return false;
    }
    const auto state = State();
    if (state == SoundOnDevice::State::Playing) return wasHeard_ = true;
    if (state == SoundOnDevice::State::Silent) {
      // A device says that a sound plays when it can be heard, a moment after it was told to.
      if (!wasHeard_ && passed < std::min(MarginSeconds, length)) return true;
      if (!isLooping_) return plays_ = false;
    }
    if (!Resume(state)) Stop();
    return plays_;
  }

  bool SetFrequency(int rate) {
    if (rate < LowestRate || rate > HighestRate) return false;
    if (onDevice_ && !onDevice_->SetFrequency(rate)) {
      // A device that has gone away refuses all; the next one is asked for this rate.
      const auto state = State();
      if (state == SoundOnDevice::State::Playing || state == SoundOnDevice::State::Silent) {
        return false;
      }
    }
    rate_ = rate;
    begun_ = SteadySeconds();  // its end is now another, and at the latest this far away
    return true;
  }

 private:
  // Puts the sound into the device's memory if it is not there.
  bool IsOnDevice() {
    if (onDevice_) return true;
    onDevice_ = device_->Make(wave_);
    if (onDevice_ && rate_ != wave_.rate && !onDevice_->SetFrequency(rate_)) onDevice_.reset();
    return onDevice_ != nullptr;
  }

  SoundOnDevice::State State() {
    return onDevice_ ? onDevice_->Ask() : SoundOnDevice::State::Broken;
  }

  bool Begin() {
    begun_ = SteadySeconds();
    wasHeard_ = false;
    return IsOnDevice() && onDevice_->Play(isLooping_);
  }

  // Lets the sound begin again after it has failed.
  bool Resume(SoundOnDevice::State state) {
    if (state == SoundOnDevice::State::Lost && restoringTriesLeft_ > 0) {
      --restoringTriesLeft_;
      if (onDevice_->Restore(wave_) && Begin()) return true;
    }
    // Another sound has opened the device anew.
    if (!onDevice_ && Begin()) return true;
    // A device that has gone away may let its memory be restored, and stay silent all the same.
    if (!mayOpenDeviceAnew_) return false;
    mayOpenDeviceAnew_ = false;
    return device_->OpenAnew() && Begin();
  }

  std::shared_ptr<Device> device_ = PerRun<RunsDevice>().device;
  Wave wave_;
  int rate_;
  std::unique_ptr<SoundOnDevice> onDevice_;
  // What is wanted, and what is known of it.
  bool plays_ = false;
  bool isLooping_ = false;
  bool wasHeard_ = false;
  double begun_ = 0;
  // What may still be tried until the next Play.
  int restoringTriesLeft_ = 0;
  bool mayOpenDeviceAnew_ = false;
};

SoundBuffer::SoundBuffer(Wave wave) {
  if (wave.samples.size() < wave.FrameSize()) {
    throw RuntimeError(RuntimeError::InvalidCall, SoundTexts.SoundHasNoData);
  }
  sound_ = std::make_unique<Sound>(AtMost16Bits(std::move(wave)));
  if (!sound_->Prepare()) FailWithoutSound();
}

SoundBuffer::~SoundBuffer() = default;
SoundBuffer::SoundBuffer(SoundBuffer&& other) noexcept = default;
SoundBuffer& SoundBuffer::operator=(SoundBuffer&& other) noexcept = default;

void SoundBuffer::Play(Looping looping) {
  if (!sound_->Play(looping)) {
    sound_->Stop();
    FailWithoutSound();
  }
}

void SoundBuffer::Stop() noexcept {
  sound_->Stop();
}

bool SoundBuffer::IsPlaying() {
  return sound_->IsPlaying();
}

void SoundBuffer::SetFrequency(int rate) {
  if (!sound_->SetFrequency(rate)) {
    throw RuntimeError(RuntimeError::InvalidCall, SoundTexts.SoundFrequencyNotPossible);
  }
}

}  // namespace Platform
