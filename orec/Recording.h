// A WAV file into which a device is recorded.
//
// The system hands over what a device hears in buffers that must be emptied all the time, also
// while the program that records shows a box or is busy. So each recording has a thread of its own,
// and all calls to its device are made there. Those who call here only say what they want and wait
// for a limited time. Where a call to a device never returns, its thread is left behind with all
// that the device may still write to, and the file is closed without it.
//
//   Opening --> Ready <--> Recording --> Ended      also from anywhere: a failure, or Close
//
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>

#include "orec/Format.h"
#include "orec/Input.h"
#include "orec/WaveWriter.h"

namespace ORec {

// Any thread may call any function at any time. Each returns 0 or one of ORec_Failure.
class Recording : public std::enable_shared_from_this<Recording> {
 public:
  Recording(const Format& format, int device) : format_(format), device_(device) {}

  // The first call: opens the device, and then makes the file.
  int32_t Open(const std::string& path);
  int32_t Start();
  int32_t Stop();
  bool IsRecording();
  // The last one. Stops it, and closes file and device.
  int32_t Close();

 private:
  using Clock = std::chrono::steady_clock;
  using Lock = std::unique_lock<std::mutex>;

  enum class Stage {
    Opening,
    Ready,
    Starting,  // asked for
    Recording,
    Stopping,  // asked for
    Ended,
  };

  // --- For those who call ---

  // Lets the thread do what the stage asks for, and waits until it is another one. A device that
  // takes longer has failed.
  void WaitWhile(Stage asked, std::chrono::milliseconds atMost, Lock& lock);
  // With the lock held. Closes the file; if the thread is just writing to it, that closes it. The
  // first failure is the one that is told.
  void End(int32_t failure);

  // --- On the thread ---

  void Work();
  void UseDevice();
  int32_t OpenInput(std::unique_ptr<Input>& input);
  Stage Wanted();
  // The thread has done what that stage asked for. Another stage may have been asked for since.
  void Done(Stage asked, Stage next);
  void Fail(int32_t failure);
  int32_t Begin();
  // Takes what has come in the meantime, and writes it.
  int32_t Listen();
  int32_t Finish();
  // Takes the buffers that have come back, in their order, and writes what they hold.
  //   gives  whether the device gets them again.
  int32_t Collect(bool gives);
  bool Save(std::string_view samples);

  const Format format_;
  const int device_;

  std::mutex mutex_;
  std::condition_variable changed_;
  // What the mutex guards.
  Stage stage_ = Stage::Opening;
  int32_t failure_ = 0;
  bool isClosed_ = false;             // the thread has let go of the device
  std::unique_ptr<WaveWriter> file_;  // null while the thread writes, and when it is closed
  std::unique_ptr<Input> input_;      // made and used by the thread; others may wake it

  // The thread's own.
  Format opened_;
  size_t given_ = 0;         // how many buffers the device has
  size_t next_ = 0;          // the one that comes back next
  Clock::time_point heard_;  // when sound came last
};

}  // namespace ORec
