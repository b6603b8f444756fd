// The sound device and the sounds in its memory, as each machine has them. Only Sound uses it: it
// knows what to do when they fail.
#pragma once

#include <memory>

#include "base/RuntimeError.h"
#include "base/Wave.h"

namespace Platform {

// How all that is said to fail here does: with DeviceError, the cause SoundNotAvailable, what was
// being done, and the system's own code. The code is told to the user only; it is never asked what
// it means, since systems give different ones for the same.
[[noreturn]] void FailWithoutSound(const SystemCause& system);

class SoundDevice {
 public:
  // Opens the default device for the main window, which must be loaded. Fails if there is none.
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
  // Puts the sound, of at most 16 bits, into the device's memory. Fails if the device refuses.
  static std::unique_ptr<SoundOnDevice> Make(SoundDevice& device, const Wave& wave);
  // Ends the sound.
  ~SoundOnDevice();

  // Plays on from where it is. Fails if the device refuses, or does not answer.
  void Play(bool isLooping);
  // Fails in the same way.
  void SetFrequency(int rate);

  // Both of these are false if the device refuses, or does not answer: nobody is told of it.
  // Stops it and goes back to the beginning.
  bool Stop();
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
