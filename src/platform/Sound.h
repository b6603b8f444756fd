// Playing sounds on the default sound device.
//
// A device may go away at any time: a headset is unplugged, a remote session ends. What is playing
// is then taken up again, on a device that is opened anew if need be, and that is tried a few times
// only. Where nothing helps there is silence, and the program is told.
//
// A failure that the device is the reason of says what was tried last, and the system's code.
#pragma once

#include <cstdint>
#include <memory>

#include "base/Wave.h"

namespace Platform {

// Frequency, pan and volume control, and audible while another window has the focus: the flags that
// a sound buffer is made with.
inline constexpr uint32_t SoundBufferFlags = 0x80E0;

// Opens the default sound device, shared with other programs, for the time of the run. It belongs
// to the main window, which must be loaded. Fails with RuntimeError DeviceError and the cause
// SoundNotAvailable if there is no device. Calling it again changes nothing.
void OpenSoundDevice();

// True once the device has been opened.
bool IsSoundDeviceOpen();

enum class Looping { No, Yes };

// A sound that can be played. Several play at the same time. At the end of the run, all fall
// silent.
class SoundBuffer {
 public:
  // Makes the buffer, silent. Opens the sound device if that has not been done or was in vain, as a
  // device may have come since.
  // Fails with RuntimeError InvalidCall and the cause SoundHasNoData if the wave is empty; with
  // DeviceError and the cause SoundNotAvailable if there is no device or it does not make the
  // buffer.
  explicit SoundBuffer(Wave wave);
  // Stops it.
  ~SoundBuffer();
  // Goes on playing. The buffer that was moved from can only be destroyed or assigned to.
  SoundBuffer(SoundBuffer&& other) noexcept;
  SoundBuffer& operator=(SoundBuffer&& other) noexcept;

  // Plays it from its beginning, once or again and again without a gap until Stop; one that is
  // playing begins anew. Returns at once.
  // Fails with RuntimeError DeviceError and the cause SoundNotAvailable; it is then silent.
  void Play(Looping looping);

  // Stops it and goes back to its beginning. Cannot fail: a device that does not answer is silent.
  void Stop() noexcept;

  // True while it plays. This is where a device that has gone away is noticed and another is tried,
  // so whoever plays a sound should ask now and then; false after Play without Stop means that one
  // played once is over, or that there is no device any more. Ends in bounded time even where the
  // device goes on saying that it plays: one played once is over when its time is.
  bool IsPlaying();

  // Plays it at another rate from now on, also while it is silent: higher and faster, or lower and
  // slower.
  //   rate  frames a second, LowestRate to HighestRate.
  // Fails with RuntimeError InvalidCall and the cause SoundFrequencyNotPossible if the rate is out
  // of these limits, or the device's own are narrower. What plays goes on as before.
  void SetFrequency(int rate);

 private:
  struct Sound;
  std::unique_ptr<Sound> sound_;
};

}  // namespace Platform
