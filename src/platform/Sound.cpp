// What a sound does when its device fails. The same on every machine.
#include "platform/Sound.h"

#include <algorithm>
#include <functional>
#include <vector>

#include "base/PerRun.h"
#include "base/RuntimeError.h"
#include "base/SoundTexts.h"
#include "platform/Clock.h"
#include "platform/SoundDevice.h"

namespace Platform {

void FailWithoutSound(const SystemCause& system) {
  throw RuntimeError(RuntimeError::DeviceError, SoundTexts.SoundNotAvailable, "", system);
}

namespace {

// Memory that is lost again and again is not got back for ever.
constexpr int RestoringTries = 3;

// How much later than by the clock a sound may end, and how long it may take to begin.
constexpr double MarginSeconds = 1;

// The run's device with the sounds in its memory. The sounds share it, since they may go after the
// run has closed it.
class Device {
 public:
  bool IsOpen() const { return device_ != nullptr; }

  // Fails if there is none.
  void Open() {
    // A sound may outlive the run; the device must not come back for it.
    if (isOver_) FailWithoutSound({});
    if (!device_) device_ = SoundDevice::Open();
  }

  // The sounds leave the old device before it goes. Those that were playing come back when they
  // are asked whether they play.
  void OpenAnew() {
    Close();
    Open();
  }

  // At the end of the run.
  void End() {
    isOver_ = true;
    Close();
  }

  // Fails if it refuses, or is not open.
  std::unique_ptr<SoundOnDevice> Make(const Wave& wave) {
    if (!device_) FailWithoutSound({});
    return SoundOnDevice::Make(*device_, wave);
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
  PerRun<RunsDevice>().device->Open();
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

  // Fails if the device cannot be had, or refuses.
  void Prepare() {
    device_->Open();
    if (Succeeds([this] { PutOnDevice(); })) return;
    // It may have gone away since it was opened, and another be there.
    device_->OpenAnew();
    PutOnDevice();
  }

  void Play(Looping looping) {
    Stop();
    plays_ = true;
    isLooping_ = looping == Looping::Yes;
    restoringTriesLeft_ = RestoringTries;
    mayOpenDeviceAnew_ = true;
    if (!Succeeds([this] { Begin(); })) Resume(State());
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
    // The user hears that it is over, as when a plug is pulled; no box need say so too.
    if (!Succeeds([&] { Resume(state); })) Stop();
    return plays_;
  }

  void SetFrequency(int rate) {
    if (rate < LowestRate || rate > HighestRate) FailForRate({});
    try {
      if (onDevice_) onDevice_->SetFrequency(rate);
    } catch (const RuntimeError& refusal) {
      // A device that has gone away refuses all; the next one is asked for this rate.
      const auto state = State();
      if (state == SoundOnDevice::State::Playing || state == SoundOnDevice::State::Silent) {
        FailForRate(refusal.system());
      }
    }
    rate_ = rate;
    begun_ = SteadySeconds();  // its end is now another, and at the latest this far away
  }

 private:
  // Of several tries only the last one's failure is told, since it is what stays in the way.
  static bool Succeeds(const std::function<void()>& attempt) {
    try {
      attempt();
      return true;
    } catch (const RuntimeError&) {
      return false;
    }
  }

  [[noreturn]] static void FailForRate(const SystemCause& system) {
    throw RuntimeError(RuntimeError::InvalidCall, SoundTexts.SoundFrequencyNotPossible, "", system);
  }

  // Puts the sound into the device's memory if it is not there.
  void PutOnDevice() {
    if (onDevice_) return;
    auto made = device_->Make(wave_);
    if (rate_ != wave_.rate) made->SetFrequency(rate_);
    onDevice_ = std::move(made);
  }

  SoundOnDevice::State State() {
    return onDevice_ ? onDevice_->Ask() : SoundOnDevice::State::Broken;
  }

  void Begin() {
    begun_ = SteadySeconds();
    wasHeard_ = false;
    PutOnDevice();
    onDevice_->Play(isLooping_);
  }

  // Lets the sound begin again after it has failed.
  void Resume(SoundOnDevice::State state) {
    const auto begins = [this] { Begin(); };
    if (state == SoundOnDevice::State::Lost && restoringTriesLeft_ > 0) {
      --restoringTriesLeft_;
      if (onDevice_->Restore(wave_) && Succeeds(begins)) return;
    }
    // Another sound has opened the device anew.
    if (!onDevice_ && Succeeds(begins)) return;
    // A device that has gone away may let its memory be restored, and stay silent all the same.
    if (!mayOpenDeviceAnew_) FailWithoutSound({});
    mayOpenDeviceAnew_ = false;
    device_->OpenAnew();
    Begin();
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
  sound_->Prepare();
}

SoundBuffer::~SoundBuffer() = default;
SoundBuffer::SoundBuffer(SoundBuffer&& other) noexcept = default;
SoundBuffer& SoundBuffer::operator=(SoundBuffer&& other) noexcept = default;

void SoundBuffer::Play(Looping looping) {
  try {
    sound_->Play(looping);
  } catch (...) {
    sound_->Stop();
    throw;
  }
}

void SoundBuffer::Stop() noexcept {
  sound_->Stop();
}

bool SoundBuffer::IsPlaying() {
  return sound_->IsPlaying();
}

void SoundBuffer::SetFrequency(int rate) {
  sound_->SetFrequency(rate);
}

}  // namespace Platform
