// The microphones of the simulated machine.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/Wave.h"
#include "platform/Recorder.h"

namespace Simulated {

class Microphone {
 public:
  // The devices, by their numbers; the first is the user's default one.
  std::vector<std::string> devices{"Microphone"};

  // What is said into it from the beginning of each recording on, with the recording's rate and 16
  // bits; in mono it is heard on both channels. Behind it, and without it, there is silence.
  Wave voice;

  // No device can be opened, for that reason; none: they can again.
  void Refuse(Platform::RecordingFailure why) { refusal_ = why; }
  Platform::RecordingFailure Refusal() const { return refusal_; }

  // The devices go away, and nobody is told: a recording hears nothing more, and ends some seconds
  // later.
  void Unplug();

  // What was recorded last: its file, and on which device.
  struct Recorded {
    std::string path;
    int rate = 0;
    int channels = 0;
    int device = 0;
  };
  const std::vector<Recorded>& Takes() const { return takes_; }
  // True while the program has a recording open, whether or not it hears anything.
  bool IsOpen() const { return openings_ > 0; }

  // For the service.
  void Open(const Recorded& recorded);
  void Close() { --openings_; }
  std::optional<double> UnpluggedAt() const { return unpluggedAt_; }

 private:
  Platform::RecordingFailure refusal_ = Platform::RecordingFailure::None;
  std::vector<Recorded> takes_;
  int openings_ = 0;
  std::optional<double> unpluggedAt_;  // by the clock that never goes back
};

}  // namespace Simulated
