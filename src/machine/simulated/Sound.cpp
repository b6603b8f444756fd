#include "platform/Sound.h"

#include "base/PerRun.h"
#include "base/RuntimeError.h"
#include "machine/simulated/Machine.h"
#include "ui/Forms.h"

namespace Platform {

void OpenSoundDevice(Form& owner) {
  Simulated::Machine& machine = Simulated::TheMachine();
  if (machine.sound.IsOpen()) return;
  if (!owner.IsLoaded()) Simulated::Complain("the sound device's owner is not loaded");
  if (machine.faults.Strikes("OpenSoundDevice") || !machine.sound.IsPluggedIn()) {
    throw RuntimeError(RuntimeError::DeviceError);
  }
  machine.sound.Open();
  RunObjects::OnEnd([] { Simulated::TheMachine().sound.Close(); });
}

bool IsSoundDeviceOpen() {
  return Simulated::TheMachine().sound.IsOpen();
}

}  // namespace Platform
