#include "platform/Recorder.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "machine/simulated/Machine.h"
#include "platform/FileCalls.h"

namespace Simulated {

void Microphone::Unplug() {
  devices.clear();
  unpluggedAt_ = TheMachine().clock.Steady();
}

void Microphone::Open(const Recorded& recorded) {
  takes_.push_back(recorded);
  ++openings_;
  unpluggedAt_.reset();
}

}  // namespace Simulated

namespace Platform {

using Simulated::TheMachine;

namespace {

// How long a device may be silent until it is known to have gone.
constexpr double Patience = 3;

// A number of so many bytes, the low one first.
std::string Number(uint64_t number, int size) {
  std::string bytes;
  for (int i = 0; i < size; ++i) bytes += static_cast<char>(number >> (8 * i));
  return bytes;
}

// What stands in a wave file of 16 bits before its samples.
std::string Header(int rate, int channels, uint64_t size) {
  const auto frames = static_cast<uint64_t>(rate);
  const auto frame = static_cast<uint64_t>(channels) * 2;
  return "RIFF" + Number(36 + size, 4) + "WAVEfmt " + Number(16, 4) + Number(1, 2) +
         Number(static_cast<uint64_t>(channels), 2) + Number(frames, 4) +
         Number(frames * frame, 4) + Number(frame, 2) + Number(16, 2) + "data" + Number(size, 4);
}

bool IsDone(SystemError error) {
  return error == SystemError::None;
}

}  // namespace

std::vector<std::string> RecordingDevices() {
  if (TheMachine().faults.Strikes("RecordingDevices")) return {};
  return TheMachine().microphone.devices;
}

struct Recorder::Take {
  Take(const Simulated::Microphone::Recorded& told) : what(told) {
    TheMachine().microphone.Open(what);
  }
  ~Take() { TheMachine().microphone.Close(); }
  Take(const Take&) = delete;
  Take& operator=(const Take&) = delete;

  bool MakeFile() {
    SystemError error = file.Open(what.path, OpenFile::How::ToRewrite);
    if (IsMissing(error)) error = file.Open(what.path, OpenFile::How::New);
    return IsDone(error) && IsDone(file.SetLength(0)) &&
           IsDone(file.Write(Header(what.rate, what.channels, 0)));
  }

  // Writes what has been heard since the last time.
  bool Save() {
    if (!file.IsOpen()) return true;
    const double end = TheMachine().microphone.UnpluggedAt().value_or(TheMachine().clock.Steady());
    const auto frames = static_cast<size_t>(std::llround((end - begun) * what.rate));
    std::string samples;
    for (; heard < frames; ++heard) samples += Frame(heard);
    const size_t size = heard * FrameSize();
    if (samples.empty()) return true;
    return IsDone(file.Seek(44 + size - samples.size())) && IsDone(file.Write(samples)) &&
           IsDone(file.Seek(0)) && IsDone(file.Write(Header(what.rate, what.channels, size)));
  }

  size_t FrameSize() const { return static_cast<size_t>(what.channels) * 2; }

  std::string Frame(size_t number) const {
    const Wave& voice = TheMachine().microphone.voice;
    if (number >= voice.Frames()) return std::string(FrameSize(), '\0');
    const std::string spoken = voice.samples.substr(number * voice.FrameSize(), voice.FrameSize());
    if (voice.bits != 16 || voice.rate != what.rate || spoken.size() > FrameSize()) {
      Simulated::Complain("the voice has another format than the recording");
    }
    return spoken.size() == FrameSize() ? spoken : spoken + spoken;
  }

  const Simulated::Microphone::Recorded what;
  const double begun = TheMachine().clock.Steady();
  OpenFile file;
  size_t heard = 0;  // frames
};

Recorder::Recorder() = default;

Recorder::~Recorder() {
  Stop();
}

RecordingFailure Recorder::Start(const std::string& path, int rate, int channels, int device) {
  Stop();
  Simulated::Machine& machine = TheMachine();
  if (machine.faults.Strikes("Recorder::Start")) return RecordingFailure::DeviceFailed;
  const int number = std::max(device, 0);
  if (number >= static_cast<int>(machine.microphone.devices.size())) {
    return RecordingFailure::NoDevice;
  }
  if (machine.microphone.Refusal() != RecordingFailure::None) return machine.microphone.Refusal();
  auto take = std::make_unique<Take>(Simulated::Microphone::Recorded{path, rate, channels, device});
  if (!take->MakeFile()) return RecordingFailure::FileFailed;
  take_ = std::move(take);
  return RecordingFailure::None;
}

bool Recorder::IsRecording() const {
  if (!take_ || !take_->file.IsOpen()) return false;
  const auto unplugged = TheMachine().microphone.UnpluggedAt();
  if (!unplugged || TheMachine().clock.Steady() - *unplugged < Patience) return true;
  take_->Save();
  take_->file.Close();
  return false;
}

RecordingFailure Recorder::Stop() noexcept {
  if (!take_) return RecordingFailure::None;
  const bool isRecording = IsRecording() && !TheMachine().microphone.UnpluggedAt();
  const bool isSaved = take_->Save();
  const bool hasFailed = TheMachine().faults.Strikes("Recorder::Stop");
  take_.reset();
  if (!isSaved) return RecordingFailure::FileFailed;
  return isRecording && !hasFailed ? RecordingFailure::None : RecordingFailure::DeviceFailed;
}

}  // namespace Platform
