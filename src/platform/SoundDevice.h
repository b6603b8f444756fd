// The sound device and the sounds in its memory, as each machine has them. Only Sound uses it: it
// knows what to do when they fail.
#pragma once

#include <memory>

#include "base/Wave.h"

namespace Platform {

class SoundDevice {
 public:
  // Opens the default device for the main window, which must be loaded. Null if there is none.
  static std::unique_ptr<SoundDevice> Open();
  ~SoundDevice();

  struct Native;
  Native& native() const { return *native_; }

 private:
  SoundDevice();
  std::unique_ptr<Native> native_;
};

// A sound in the memory of a device, which must outlive it.
class SoundOnDevice {
 public:
  // Puts the sound, of at most 16 bits, into the device's memory. Null if the device refuses.
  static std::unique_ptr<SoundOnDevice> Make(SoundDevice& device, const Wave& wave);
  // Ends the sound.
  ~SoundOnDevice();

  // Each of these is false if the device refuses, or does not answer, for whatever reason.
  // Plays on from where it is.
  bool Play(bool isLooping);
  // Stops it and goes back to the beginning.
  bool Stop();
  bool SetFrequency(int rate);
  // Gets memory that was lost back, and fills it anew with the same sound. It is then silent.
  bool Restore(const Wave& wave);

  enum class State {
    Playing,
    Silent,
    Lost,    // its memory was taken away
    Broken,  // the device does not answer
  };
  State Ask();

  struct Native;

 private:
  SoundOnDevice();
  std::unique_ptr<Native> native_;
};

}  // namespace Platform
