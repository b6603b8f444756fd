#include "platform/Sound.h"

#include "machine/win32/System.h"

// Before dsound.h, which needs its types.
#include <mmsystem.h>

#include <dsound.h>

#include "base/PerRun.h"
#include "base/RuntimeError.h"
#include "machine/win32/FormWindow.h"
#include "ui/Forms.h"

namespace Platform {

static_assert(SoundBufferFlags ==
              (DSBCAPS_CTRLFREQUENCY | DSBCAPS_CTRLPAN | DSBCAPS_CTRLVOLUME | DSBCAPS_GLOBALFOCUS));

namespace {

struct SoundDevice {
  SoundDevice() = default;
  SoundDevice(const SoundDevice&) = delete;
  SoundDevice& operator=(const SoundDevice&) = delete;
  ~SoundDevice() {
    if (device) device->Release();
  }
  IDirectSound8* device = nullptr;
};

}  // namespace

void OpenSoundDevice(Form& owner) {
  SoundDevice& sound = PerRun<SoundDevice>();
  if (sound.device) return;
  IDirectSound8* device = nullptr;
  if (FAILED(DirectSoundCreate8(nullptr, &device, nullptr))) {
    throw RuntimeError(RuntimeError::DeviceError);
  }
  if (FAILED(device->SetCooperativeLevel(WindowOf(owner), DSSCL_NORMAL))) {
    device->Release();
    throw RuntimeError(RuntimeError::DeviceError);
  }
  sound.device = device;
}

bool IsSoundDeviceOpen() {
  return PerRun<SoundDevice>().device != nullptr;
}

}  // namespace Platform
