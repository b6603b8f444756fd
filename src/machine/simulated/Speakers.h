// The sound device of the simulated machine.
#pragma once

namespace Simulated {

class Speakers {
 public:
  // Without a device, opening it fails.
  void Unplug() { isPluggedIn_ = false; }
  bool IsPluggedIn() const { return isPluggedIn_; }

  bool IsOpen() const { return isOpen_; }

  // For the service.
  void Open() { isOpen_ = true; }
  // At the end of a run, which owns the device.
  void Close() { isOpen_ = false; }

 private:
  bool isPluggedIn_ = true;
  bool isOpen_ = false;
};

}  // namespace Simulated
