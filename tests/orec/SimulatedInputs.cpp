#include "tests/orec/SimulatedInputs.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

#include "orec/CharacterCut.h"
#include "orec/TargetFile.h"
#include "orec/Worker.h"

namespace SimulatedOrec {

namespace {

World* theWorld = nullptr;

using Lock = std::unique_lock<std::mutex>;

// Much longer than anything takes.
constexpr std::chrono::seconds Patience{20};

}  // namespace

World& TheWorld() {
  return *theWorld;
}

World::World() {
  theWorld = this;
}

World::~World() {
  Unblock();
  WaitForThreads();
  EXPECT_TRUE(openFiles.empty());
  EXPECT_TRUE(open.empty());
  theWorld = nullptr;
}

void World::Block(const std::string& call) {
  const Lock lock(mutex);
  blocked.insert(call);
}

void World::Unblock() {
  const Lock lock(mutex);
  blocked.clear();
  changed.notify_all();
}

void World::WaitForThreads() {
  std::vector<std::thread> running;
  {
    const Lock lock(mutex);
    running = std::exchange(threads, {});
  }
  for (std::thread& thread : running) thread.join();
}

void World::Pass(const std::string& call, Lock& lock) {
  changed.wait(lock, [&] { return !blocked.count(call); });
}

bool World::GoesWell(const std::string& call) {
  const auto found = goodCalls.find(call);
  return found == goodCalls.end() || found->second-- > 0;
}

void World::GiveBack(OpenDevice& device) {
  device.buffers[device.given.front()].isFilled = true;
  device.given.pop_front();
  changed.notify_all();
}

void World::HearAndGoOn(std::string_view samples) {
  Lock lock(mutex);
  ASSERT_FALSE(open.empty());
  OpenDevice& device = *open.back();
  while (!samples.empty()) {
    ASSERT_TRUE(changed.wait_for(lock, Patience, [&] {
      return device.isStarted && !device.given.empty();
    })) << "nobody listens";
    OpenDevice::Buffer& buffer = device.buffers[device.given.front()];
    const std::string_view part = samples.substr(0, buffer.size - buffer.bytes.size());
    buffer.bytes += part;
    samples.remove_prefix(part.size());
    if (buffer.bytes.size() == buffer.size) GiveBack(device);
  }
}

void World::Hear(std::string_view samples) {
  HearAndGoOn(samples);
  Lock lock(mutex);
  const auto isTaken = [&] {
    return blocked.count("WriteAt") ||
           std::none_of(open.begin(), open.end(), [](const auto* device) {
             return std::any_of(device->buffers.begin(), device->buffers.end(),
                                [](const auto& each) { return each.isFilled; });
           });
  };
  EXPECT_TRUE(changed.wait_for(lock, Patience, isTaken)) << "nobody takes what was heard";
}

void World::HearNothing() {
  Lock lock(mutex);
  OpenDevice& device = *open.back();
  ASSERT_TRUE(
      changed.wait_for(lock, Patience, [&] { return device.isStarted && !device.given.empty(); }));
  GiveBack(device);
}

std::string World::BytesOf(const std::string& path) {
  const Lock lock(mutex);
  return files.count(path) ? files[path].bytes : "";
}

void World::Put(const std::string& path, const std::string& bytes) {
  const Lock lock(mutex);
  files[path].bytes = bytes;
}

bool World::Exists(const std::string& path) {
  const Lock lock(mutex);
  return files.count(path) > 0;
}

std::vector<std::string> World::History(const std::string& path) {
  const Lock lock(mutex);
  return files[path].history;
}

std::set<std::string> World::OpenFiles() {
  const Lock lock(mutex);
  return openFiles;
}

size_t World::OpenDevices() {
  const Lock lock(mutex);
  return open.size();
}

}  // namespace SimulatedOrec

namespace ORec {

using SimulatedOrec::OpenDevice;
using SimulatedOrec::TheWorld;
using SimulatedOrec::World;
using Lock = std::unique_lock<std::mutex>;

int CountInputs() {
  World& world = TheWorld();
  Lock lock(world.mutex);
  world.Pass("CountInputs", lock);
  return static_cast<int>(world.devices.size());
}

std::string NameOfInput(int number) {
  World& world = TheWorld();
  Lock lock(world.mutex);
  world.Pass("NameOfInput", lock);
  return world.devices[static_cast<size_t>(number)].name;
}

struct Input::Native {
  OpenDevice device;
};

Input::Input() : native_(std::make_unique<Native>()) {}

Code Input::Open(int number, const Format& format, Buffers buffers,
                 std::unique_ptr<Input>& opened) {
  World& world = TheWorld();
  Lock lock(world.mutex);
  world.Pass("Open", lock);
  const size_t which = number < 0 ? 0 : static_cast<size_t>(number);
  if (which >= world.devices.size()) return Code::BadDevice;
  if (!world.devices[which].channels.count(format.channels)) return world.devices[which].refusal;
  std::unique_ptr<Input> input(new Input);
  OpenDevice& device = input->native_->device;
  device.number = number;
  device.format = format;
  device.buffers.resize(buffers.count);
  for (auto& buffer : device.buffers) buffer.size = buffers.size;
  world.open.push_back(&device);
  opened = std::move(input);
  return Code::None;
}

Input::~Input() {
  World& world = TheWorld();
  Lock lock(world.mutex);
  world.Pass("Close", lock);
  std::erase(world.open, &native_->device);
  world.changed.notify_all();
}

Code Input::Give(size_t buffer) {
  World& world = TheWorld();
  Lock lock(world.mutex);
  world.Pass("Give", lock);
  if (!world.GoesWell("Give")) return Code::NoDriver;
  OpenDevice& device = native_->device;
  EXPECT_EQ(std::count(device.given.begin(), device.given.end(), buffer), 0);
  device.buffers[buffer].isFilled = world.isDeliveringNothing;
  device.buffers[buffer].bytes.clear();
  if (!world.isDeliveringNothing) device.given.push_back(buffer);
  world.changed.notify_all();
  return Code::None;
}

std::optional<std::string_view> Input::Take(size_t buffer) {
  World& world = TheWorld();
  const Lock lock(world.mutex);
  OpenDevice::Buffer& taken = native_->device.buffers[buffer];
  if (!taken.isFilled) return std::nullopt;
  taken.isFilled = false;
  world.changed.notify_all();
  return taken.bytes;
}

Code Input::Start() {
  World& world = TheWorld();
  Lock lock(world.mutex);
  world.Pass("Start", lock);
  if (!world.GoesWell("Start")) return Code::NoDriver;
  native_->device.isStarted = true;
  world.changed.notify_all();
  return Code::None;
}

Code Input::Stop() {
  World& world = TheWorld();
  Lock lock(world.mutex);
  world.Pass("Stop", lock);
  OpenDevice& device = native_->device;
  device.isStarted = false;
  if (!device.given.empty() && !world.keepsBufferAtStop) world.GiveBack(device);
  return Code::None;
}

Code Input::Reset() {
  World& world = TheWorld();
  Lock lock(world.mutex);
  world.Pass("Reset", lock);
  OpenDevice& device = native_->device;
  device.isStarted = false;
  if (world.GoesWell("Reset")) {
    while (!device.given.empty()) world.GiveBack(device);
  }
  return Code::None;
}

void Input::Wait(std::chrono::milliseconds atMost) {
  World& world = TheWorld();
  Lock lock(world.mutex);
  OpenDevice& device = native_->device;
  world.changed.wait_for(lock, atMost, [&] {
    return device.isAwake || std::any_of(device.buffers.begin(), device.buffers.end(),
                                         [](const auto& each) { return each.isFilled; });
  });
  device.isAwake = false;
}

void Input::Wake() {
  World& world = TheWorld();
  const Lock lock(world.mutex);
  native_->device.isAwake = true;
  world.changed.notify_all();
}

struct TargetFile::Native {
  std::string path;
};

TargetFile::TargetFile() : native_(std::make_unique<Native>()) {}

TargetFile::~TargetFile() {
  World& world = TheWorld();
  const Lock lock(world.mutex);
  world.openFiles.erase(native_->path);
}

std::unique_ptr<TargetFile> TargetFile::Open(const std::string& path) {
  World& world = TheWorld();
  const Lock lock(world.mutex);
  if (world.refusesFiles || world.openFiles.count(path)) return nullptr;
  std::unique_ptr<TargetFile> file(new TargetFile);
  file->native_->path = path;
  world.files[path] = {};
  world.openFiles.insert(path);
  return file;
}

bool TargetFile::WriteAt(uint64_t place, std::string_view bytes) {
  World& world = TheWorld();
  Lock lock(world.mutex);
  world.Pass("WriteAt", lock);
  World::File& file = world.files[native_->path];
  const uint64_t end = std::max(place + bytes.size(), file.size);
  if (end > world.diskSpace) return false;
  file.size = end;
  if (world.keepsNoBytes) {
    if (place == 0) file.bytes = bytes;
    return true;
  }
  file.bytes.resize(end);
  file.bytes.replace(place, bytes.size(), bytes);
  file.history.push_back(file.bytes);
  return true;
}

bool StartWorker(std::function<void()> work) {
  World& world = TheWorld();
  const Lock lock(world.mutex);
  if (!world.hasThreads) return false;
  world.threads.emplace_back(std::move(work));
  return true;
}

// As in UTF-8.
size_t WholeCharacters(const std::string& text, size_t atMost) {
  size_t length = std::min(text.size(), atMost);
  while (length > 0 && length < text.size() && (text[length] & 0xC0) == 0x80) --length;
  return length;
}

}  // namespace ORec
