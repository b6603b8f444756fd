#include <algorithm>

#include "base/RuntimeErrorTexts.h"
#include "machine/simulated/Machine.h"
#include "platform/SoundDevice.h"
#include "ui/Forms.h"

namespace Simulated {

namespace {
PlayedSound Told(const SoundInMemory& sound) {
  return {sound.wave.samples, sound.wave.channels, sound.wave.bits, sound.rate, sound.isLooping};
}
}  // namespace

std::vector<std::shared_ptr<SoundInMemory>> Speakers::Sounds() const {
  std::vector<std::shared_ptr<SoundInMemory>> there;
  for (const auto& sound : sounds_) {
    if (auto kept = sound.lock()) there.push_back(std::move(kept));
  }
  return there;
}

std::vector<PlayedSound> Speakers::Playing() const {
  std::vector<PlayedSound> playing;
  for (const auto& sound : Sounds()) {
    if (sound->isPlaying) playing.push_back(Told(*sound));
  }
  return playing;
}

void Speakers::EndSounds() {
  double longest = 0;
  for (const auto& sound : Sounds()) {
    if (!sound->isPlaying || sound->isLooping) continue;
    longest = std::max(longest, sound->wave.Seconds() * sound->wave.rate / sound->rate);
    sound->isPlaying = false;
  }
  // They do not end before their time: the program measures it.
  TheMachine().clock.Pass(longest);
}

void Speakers::SilenceAll() {
  for (const auto& sound : Sounds()) sound->isPlaying = false;
}

void Speakers::Unplug() {
  isPluggedIn_ = false;
  ++device_;
  SilenceAll();
  for (const auto& sound : Sounds()) sound->isBroken = true;
}

void Speakers::LoseSounds() {
  SilenceAll();
  for (const auto& sound : Sounds()) {
    sound->isLost = true;
    // What the memory held is really gone, so that a sound that is not filled anew is heard.
    std::fill(sound->wave.samples.begin(), sound->wave.samples.end(), '\0');
  }
}

void Speakers::Open() {
  isOpen_ = true;
  ++openings_;
}

std::shared_ptr<SoundInMemory> Speakers::Make(int device, const Wave& wave) {
  if (device != device_) return nullptr;
  if (wave.samples.empty()) Complain("a sound buffer is to be made without a sound");
  if (wave.bits > 16)
    Complain("not every sound device takes " + std::to_string(wave.bits) + " bits");
  auto sound = std::make_shared<SoundInMemory>();
  sound->wave = wave;
  sound->rate = wave.rate;
  sounds_.push_back(sound);
  return sound;
}

void Speakers::Note(const SoundInMemory& sound) {
  played_.push_back(Told(sound));
}

}  // namespace Simulated

namespace Platform {

using Simulated::SoundCode;
using Simulated::TheMachine;

namespace {
[[noreturn]] void Fail(const LangText& step, SoundCode code) {
  FailWithoutSound({step, static_cast<uint32_t>(code)});
}

// Fails if the call is to, on a device that is there.
void Check(const char* call, const LangText& step) {
  if (TheMachine().faults.Strikes(call)) Fail(step, SoundCode::Generic);
  if (TheMachine().sound.Refuses(call)) Fail(step, SoundCode::Allocated);
}
}  // namespace

struct SoundDevice::Native {
  int number = TheMachine().sound.Device();
};

SoundDevice::SoundDevice() : native_(std::make_unique<Native>()) {}

SoundDevice::~SoundDevice() {
  if (!TheMachine().sound.Playing().empty()) Simulated::Complain("a device goes while it plays");
  TheMachine().sound.Close();
}

std::unique_ptr<SoundDevice> SoundDevice::Open() {
  Simulated::Machine& machine = TheMachine();
  if (!MainForm().IsLoaded()) Simulated::Complain("the sound device's owner is not loaded");
  const LangText& step = RuntimeErrorTexts.OpeningSoundDevice;
  Check("OpenSoundDevice", step);
  if (!machine.sound.IsPluggedIn()) Fail(step, SoundCode::NoDriver);
  machine.sound.Open();
  return std::unique_ptr<SoundDevice>(new SoundDevice);
}

struct SoundOnDevice::Native {
  // True if a call finds the sound and goes well.
  bool Answers(const char* call) const {
    return !TheMachine().faults.Strikes(call) && !sound->isBroken;
  }
  // Fails if it does not.
  void Ask(const char* call, const LangText& step) const {
    Check(call, step);
    if (sound->isBroken) Fail(step, SoundCode::DeviceGone);
  }

  std::shared_ptr<Simulated::SoundInMemory> sound;
};

SoundOnDevice::SoundOnDevice() : native_(std::make_unique<Native>()) {}
SoundOnDevice::~SoundOnDevice() = default;

std::unique_ptr<SoundOnDevice> SoundOnDevice::Make(SoundDevice& device, const Wave& wave) {
  Check("SoundOnDevice", RuntimeErrorTexts.MakingSoundBuffer);
  auto made = TheMachine().sound.Make(device.native().number, wave);
  if (!made) Fail(RuntimeErrorTexts.MakingSoundBuffer, SoundCode::DeviceGone);
  std::unique_ptr<SoundOnDevice> sound(new SoundOnDevice);
  sound->native_->sound = std::move(made);
  return sound;
}

void SoundOnDevice::Play(bool isLooping) {
  Simulated::SoundInMemory& sound = *native_->sound;
  native_->Ask("SoundOnDevice::Play", RuntimeErrorTexts.PlayingSound);
  if (sound.isLost) Fail(RuntimeErrorTexts.PlayingSound, SoundCode::Lost);
  sound.isPlaying = true;
  sound.isLooping = isLooping;
  TheMachine().sound.Note(sound);
}

bool SoundOnDevice::Stop() {
  if (!native_->Answers("SoundOnDevice::Stop")) return false;
  native_->sound->isPlaying = false;
  return true;
}

void SoundOnDevice::SetFrequency(int rate) {
  native_->Ask("SoundOnDevice::SetFrequency", RuntimeErrorTexts.SettingFrequency);
  if (rate > TheMachine().sound.HighestRate()) {
    Fail(RuntimeErrorTexts.SettingFrequency, SoundCode::InvalidParameter);
  }
  native_->sound->rate = rate;
}

bool SoundOnDevice::Restore(const Wave& wave) {
  if (!native_->Answers("SoundOnDevice::Restore")) return false;
  native_->sound->isLost = false;
  native_->sound->isPlaying = false;
  native_->sound->wave = wave;
  return true;
}

SoundOnDevice::State SoundOnDevice::Ask() {
  const Simulated::SoundInMemory& sound = *native_->sound;
  if (!native_->Answers("SoundOnDevice::Ask")) return State::Broken;
  if (sound.isLost) return State::Lost;
  return sound.isPlaying ? State::Playing : State::Silent;
}

}  // namespace Platform
