// The sound device.
#pragma once

#include <cstdint>

namespace Platform {

class Form;

// Frequency, pan and volume control, and audible while another window has the focus: the flags that
// a sound buffer is made with.
inline constexpr uint32_t SoundBufferFlags = 0x80E0;

// Opens the default sound device, shared with other programs, for the time of the run.
//   owner   the window that the device belongs to; it must be loaded.
// Fails with RuntimeError DeviceError if there is no device. Calling it again changes nothing.
void OpenSoundDevice(Form& owner);

// True once the device has been opened.
bool IsSoundDeviceOpen();

}  // namespace Platform
