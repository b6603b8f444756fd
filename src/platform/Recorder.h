// Recording what is spoken into a microphone.
//
// The recording library that stands beside the program does it, and is loaded when it is first
// needed; where it is missing, all is as if there were no device. It records while the program does
// something else or shows a box, and waits for a device a few seconds at most, also for one that
// has gone without a word.
#pragma once

#include <memory>
#include <string>
#include <vector>

namespace Platform {

// The names of the devices that can record, by the numbers that Recorder::Start takes. Each has a
// name, and no two have the same. Empty if there is none, or the system does not answer.
std::vector<std::string> RecordingDevices();

// The device that the user has made the default one in the system.
inline constexpr int DefaultRecordingDevice = -1;

// Why nothing is recorded, or no more.
enum class RecordingFailure {
  None,
  NoDevice,      // there is no such device
  Forbidden,     // the user's privacy settings keep the microphone from programs
  InUse,         // another program has the device for itself
  DeviceFailed,  // it does not answer, or gives no sound any more
  FileFailed,    // the file cannot be opened or written
};

// Records into a wave file: PCM of 16 bits.
class Recorder {
 public:
  Recorder();
  // Stops it.
  ~Recorder();
  Recorder(const Recorder&) = delete;
  Recorder& operator=(const Recorder&) = delete;

  // Begins to record. What it recorded before is ended first, as by Stop. The file is made, or the
  // one that is there is overwritten; it is a whole wave file at any moment, whatever ends the
  // program.
  //   path      absolute, system code page.
  //   rate      frames a second.
  //   channels  1 or 2, whatever the device has.
  //   device    its number, or DefaultRecordingDevice.
  // Fails with one of RecordingFailure, without an exception: a take that fails is a short one, or
  // none, and its user hears that. If it is the device that cannot be had, no file is touched.
  RecordingFailure Start(const std::string& path, int rate, int channels, int device);

  // False before Start and after Stop, and once the device has given no sound for some seconds: it
  // has gone. The file is then closed as far as it got.
  bool IsRecording() const;

  // Ends recording: what was heard until now is in the file, which is closed. Returns at the latest
  // after some seconds. Does nothing if it was not started.
  // Fails, without an exception, with what has ended the recording before.
  RecordingFailure Stop() noexcept;

 private:
  struct Take;
  std::unique_ptr<Take> take_;
};

}  // namespace Platform
