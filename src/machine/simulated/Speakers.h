// The sound device of the simulated machine: what is played on it, and what may become of it.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "base/Wave.h"

namespace Simulated {

// The codes with which a system's sound library refuses.
enum class SoundCode : uint32_t {
  Generic = 0x80004005,
  InvalidParameter = 0x80070057,
  Allocated = 0x8878000A,
  Lost = 0x88780096,
  NoDriver = 0x88780078,
  DeviceGone = 0x88890004,
};

// What is told of one call of Play.
struct PlayedSound {
  std::string samples;
  int channels = 0;
  int bits = 0;
  int rate = 0;  // at which it is played, in frames a second
  bool isLooping = false;
};

// A sound in the memory of the device.
struct SoundInMemory {
  Wave wave;
  int rate = 0;
  bool isPlaying = false;
  bool isLooping = false;
  bool isLost = false;    // its memory was taken away
  bool isBroken = false;  // its device is gone
};

class Speakers {
 public:
  // --- What was heard ---

  // What is being played, in the order in which it was made.
  std::vector<PlayedSound> Playing() const;
  // All that was ever played, in that order; the rate is that of the beginning.
  const std::vector<PlayedSound>& Played() const { return played_; }
  // How many times the device was opened.
  int Openings() const { return openings_; }

  // --- What becomes of it ---

  // All that is played once comes to its end: as much time goes by.
  void EndSounds();

  // All falls silent, what is looped too, and nobody is told.
  void SilenceAll();

  // The device goes away, or there is none from the start: it cannot be opened, and what it played
  // is silent and answers nothing any more.
  void Unplug();
  // A device is there again. What the old one played stays as it is.
  void PlugIn() { isPluggedIn_ = true; }
  bool IsPluggedIn() const { return isPluggedIn_; }

  // The memory of all sounds is taken away, as when the machine was asleep. Until it is restored
  // they are silent, and then what it held is gone.
  void LoseSounds();

  // Each device that is there refuses all calls of that name, such as "SoundOnDevice::Play", with
  // SoundCode::Allocated.
  void Refuse(const std::string& call) { refused_ = call; }
  bool Refuses(const std::string& call) const { return refused_ == call; }

  // Devices differ in the highest rate that they play.
  void SetHighestRate(int rate) { highestRate_ = rate; }

  bool IsOpen() const { return isOpen_; }

  // --- For the service ---

  void Open();
  void Close() { isOpen_ = false; }
  // The number of the device that is there; each that comes has another.
  int Device() const { return device_; }
  // Null if that device has gone.
  std::shared_ptr<SoundInMemory> Make(int device, const Wave& wave);
  void Note(const SoundInMemory& sound);
  int HighestRate() const { return highestRate_; }

 private:
  // Those that are there.
  std::vector<std::shared_ptr<SoundInMemory>> Sounds() const;

  std::vector<std::weak_ptr<SoundInMemory>> sounds_;
  std::vector<PlayedSound> played_;
  std::string refused_;
  int highestRate_ = ::HighestRate;
  int device_ = 1;
  int openings_ = 0;
  bool isPluggedIn_ = true;
  bool isOpen_ = false;
};

}  // namespace Simulated
