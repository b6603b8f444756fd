// The machine under the recording library in the tests: devices that hear what a test says, and
// fail or never answer as it wants; a disk in memory; threads that a test can wait for.
#pragma once

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <map>
#include <mutex>
#include <set>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "orec/Format.h"
#include "orec/Input.h"

namespace SimulatedOrec {

struct Device {
  std::string name;
  std::set<int> channels = {1, 2};               // others are refused
  ORec::Code refusal = ORec::Code::Unspecified;  // with this
};

// A device that is open.
struct OpenDevice {
  int number = 0;
  ORec::Format format;
  struct Buffer {
    std::string bytes;
    size_t size = 0;
    bool isFilled = false;
  };
  std::vector<Buffer> buffers;
  std::deque<size_t> given;
  bool isStarted = false;
  bool isAwake = false;
};

class World {
 public:
  World();
  // Lets all go on that was blocked, and waits for the library's threads.
  ~World();
  World(const World&) = delete;
  World& operator=(const World&) = delete;

  // --- What a test sets before, or says ---

  std::vector<Device> devices{{"Microphone"}};
  // The calls that never return, by their names: "CountInputs", "NameOfInput", "Open", "Give",
  // "Start", "Stop", "Reset", "Close", and "WriteAt" of the file.
  void Block(const std::string& call);
  void Unblock();
  // The calls of a device that fail, each after going well that many times.
  std::map<std::string, int> goodCalls;
  // The device gives every buffer back without anything in it, at once.
  bool isDeliveringNothing = false;
  // The device forgets its last buffer when it is told to stop.
  bool keepsBufferAtStop = false;
  bool hasThreads = true;
  bool refusesFiles = false;
  uint64_t diskSpace = UINT64_MAX;
  // Bytes of files are counted and not kept.
  bool keepsNoBytes = false;

  // The device that was opened last hears this. Returns when the library has taken every buffer
  // that it fills; what does not fill one is in it until it comes back.
  void Hear(std::string_view samples);
  // The same, but returns before the library may have taken anything.
  void HearAndGoOn(std::string_view samples);
  // One buffer comes back with nothing in it.
  void HearNothing();

  // --- What a test looks at ---

  // The bytes of a file; empty if there is none.
  std::string BytesOf(const std::string& path);
  void Put(const std::string& path, const std::string& bytes);
  bool Exists(const std::string& path);
  // What a file has held after each write.
  std::vector<std::string> History(const std::string& path);
  std::set<std::string> OpenFiles();
  // How many devices are open.
  size_t OpenDevices();
  // Whether the library's threads have all ended; waits for it.
  void WaitForThreads();

  // --- For the services ---

  struct File {
    std::string bytes;
    std::vector<std::string> history;
    uint64_t size = 0;
  };

  // Waits as long as that call is blocked. With the lock held.
  void Pass(const std::string& call, std::unique_lock<std::mutex>& lock);
  // False if the call is to fail. With the lock held.
  bool GoesWell(const std::string& call);
  void GiveBack(OpenDevice& device);

  std::mutex mutex;
  std::condition_variable changed;
  std::set<std::string> blocked;
  std::vector<OpenDevice*> open;
  std::map<std::string, File> files;
  std::set<std::string> openFiles;
  std::vector<std::thread> threads;
};

World& TheWorld();

}  // namespace SimulatedOrec
