// The recording devices of the contract tests. The recording library is the one that ships;
// somebody stands between it and the system, and lets it see devices that hear what a test says,
// refuse, or go away, as no real ones do on demand. As long as no test has set any, it sees the
// system's own.
#include "tests/machine/RealMachine.h"

// After System.h, which it needs.
#include <mmsystem.h>

#include <algorithm>
#include <cstring>
#include <deque>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "e2e/driver/Wait.h"
#include "machine/win32/RecordingLibrary.h"
#include "tests/machine/RealMachineImports.h"
#include "tests/machine/TestMachine.h"

namespace {

struct Device {
  HANDLE event = nullptr;
  std::deque<WAVEHDR*> buffers;
  bool isStarted = false;
};

// The devices of the running test. Those that were open at its end stay in memory: a thread of the
// library may still have them.
struct Devices {
  std::mutex mutex;
  bool areSet = false;
  std::vector<std::string> names;
  MMRESULT refusal = MMSYSERR_NOERROR;
  bool areGone = false;
  HANDLE released =
      CreateEventA(nullptr, TRUE, FALSE, nullptr);  // those that were called for a gone one
  std::vector<Device*> open;
};

Devices& TheDevices() {
  static Devices& devices = *new Devices;
  return devices;
}

using Lock = std::unique_lock<std::mutex>;

Device& Opened(HWAVEIN handle) {
  return *reinterpret_cast<Device*>(handle);
}

bool IsOurs(HWAVEIN handle) {
  const Lock lock(TheDevices().mutex);
  const auto& open = TheDevices().open;
  return std::count(open.begin(), open.end(), reinterpret_cast<Device*>(handle)) > 0;
}

void GiveBack(Device& device) {
  WAVEHDR& header = *device.buffers.front();
  device.buffers.pop_front();
  header.dwFlags = (header.dwFlags & ~WHDR_INQUEUE) | WHDR_DONE;
  SetEvent(device.event);
}

// A call to a device that has gone does not return before the test ends.
void WaitIfGone() {
  {
    const Lock lock(TheDevices().mutex);
    if (!TheDevices().areGone) return;
  }
  WaitForSingleObject(TheDevices().released, INFINITE);
}

// The system's own functions, for when no test has set devices.
template <class Function>
struct Original {
  Function* function = nullptr;
};
Original<decltype(waveInGetNumDevs)> getNumDevs;
Original<decltype(waveInGetDevCapsW)> getDevCaps;
Original<decltype(waveInOpen)> open;
Original<decltype(waveInPrepareHeader)> prepare;
Original<decltype(waveInUnprepareHeader)> unprepare;
Original<decltype(waveInAddBuffer)> add;
Original<decltype(waveInStart)> start;
Original<decltype(waveInStop)> stop;
Original<decltype(waveInReset)> reset;
Original<decltype(waveInClose)> closeDevice;

UINT WINAPI GetNumDevs() {
  const Lock lock(TheDevices().mutex);
  if (!TheDevices().areSet) return getNumDevs.function();
  return static_cast<UINT>(TheDevices().names.size());
}

MMRESULT WINAPI GetDevCaps(UINT_PTR number, WAVEINCAPSW* caps, UINT size) {
  const Lock lock(TheDevices().mutex);
  if (!TheDevices().areSet) return getDevCaps.function(number, caps, size);
  if (number >= TheDevices().names.size()) return MMSYSERR_BADDEVICEID;
  const std::string& name = TheDevices().names[number];
  std::copy(name.begin(), name.end() + 1, caps->szPname);
  return MMSYSERR_NOERROR;
}

MMRESULT WINAPI OpenDevice(HWAVEIN* handle, UINT number, const WAVEFORMATEX* format,
                           DWORD_PTR callback, DWORD_PTR instance, DWORD flags) {
  EXPECT_EQ(flags, DWORD{CALLBACK_EVENT});
  EXPECT_EQ(format->wBitsPerSample, 16);
  const Lock lock(TheDevices().mutex);
  Devices& devices = TheDevices();
  if (!devices.areSet) return open.function(handle, number, format, callback, instance, flags);
  const size_t which = number == WAVE_MAPPER ? 0 : number;
  if (which >= devices.names.size()) return MMSYSERR_BADDEVICEID;
  if (devices.refusal) return devices.refusal;
  auto* const device = new Device;
  device->event = reinterpret_cast<HANDLE>(callback);
  devices.open.push_back(device);
  *handle = reinterpret_cast<HWAVEIN>(device);
  return MMSYSERR_NOERROR;
}

MMRESULT WINAPI Prepare(HWAVEIN handle, WAVEHDR* header, UINT size) {
  if (!IsOurs(handle)) return prepare.function(handle, header, size);
  EXPECT_EQ(header->dwFlags, 0u);
  header->dwFlags = WHDR_PREPARED;
  return MMSYSERR_NOERROR;
}

MMRESULT WINAPI Unprepare(HWAVEIN handle, WAVEHDR* header, UINT size) {
  if (!IsOurs(handle)) return unprepare.function(handle, header, size);
  if (header->dwFlags & WHDR_INQUEUE) return WAVERR_STILLPLAYING;
  header->dwFlags &= ~DWORD{WHDR_PREPARED};
  return MMSYSERR_NOERROR;
}

MMRESULT WINAPI Add(HWAVEIN handle, WAVEHDR* header, UINT size) {
  if (!IsOurs(handle)) return add.function(handle, header, size);
  const Lock lock(TheDevices().mutex);
  if (!(header->dwFlags & WHDR_PREPARED)) return WAVERR_UNPREPARED;
  header->dwBytesRecorded = 0;
  header->dwFlags |= WHDR_INQUEUE;
  Opened(handle).buffers.push_back(header);
  return MMSYSERR_NOERROR;
}

MMRESULT WINAPI Start(HWAVEIN handle) {
  if (!IsOurs(handle)) return start.function(handle);
  const Lock lock(TheDevices().mutex);
  Opened(handle).isStarted = true;
  return MMSYSERR_NOERROR;
}

MMRESULT WINAPI Stop(HWAVEIN handle) {
  if (!IsOurs(handle)) return stop.function(handle);
  WaitIfGone();
  const Lock lock(TheDevices().mutex);
  Opened(handle).isStarted = false;
  if (!Opened(handle).buffers.empty()) GiveBack(Opened(handle));
  return MMSYSERR_NOERROR;
}

MMRESULT WINAPI Reset(HWAVEIN handle) {
  if (!IsOurs(handle)) return reset.function(handle);
  WaitIfGone();
  const Lock lock(TheDevices().mutex);
  Opened(handle).isStarted = false;
  while (!Opened(handle).buffers.empty()) GiveBack(Opened(handle));
  return MMSYSERR_NOERROR;
}

MMRESULT WINAPI CloseDevice(HWAVEIN handle) {
  if (!IsOurs(handle)) return closeDevice.function(handle);
  const Lock lock(TheDevices().mutex);
  if (!Opened(handle).buffers.empty()) return WAVERR_STILLPLAYING;
  std::erase(TheDevices().open, &Opened(handle));
  delete &Opened(handle);
  return MMSYSERR_NOERROR;
}

decltype(&GetProcAddress) findFunction = &GetProcAddress;

FARPROC WINAPI FindFunction(HMODULE library, LPCSTR name) {
  const FARPROC found = findFunction(library, name);
  const bool isByName = reinterpret_cast<ULONG_PTR>(name) > 0xFFFF;
  FARPROC instead = nullptr;
  const auto watch = [&](const char* watched, auto& original, auto* function) {
    if (!found || !isByName || std::strcmp(name, watched) != 0) return;
    original.function =
        reinterpret_cast<decltype(original.function)>(reinterpret_cast<void*>(found));
    instead = reinterpret_cast<FARPROC>(reinterpret_cast<void*>(function));
  };
  watch("waveInGetNumDevs", getNumDevs, &GetNumDevs);
  watch("waveInGetDevCapsW", getDevCaps, &GetDevCaps);
  watch("waveInOpen", open, &OpenDevice);
  watch("waveInPrepareHeader", prepare, &Prepare);
  watch("waveInUnprepareHeader", unprepare, &Unprepare);
  watch("waveInAddBuffer", add, &Add);
  watch("waveInStart", start, &Start);
  watch("waveInStop", stop, &Stop);
  watch("waveInReset", reset, &Reset);
  watch("waveInClose", closeDevice, &CloseDevice);
  return instead ? instead : found;
}

MMRESULT CodeOf(Platform::RecordingFailure why) {
  switch (why) {
    case Platform::RecordingFailure::None: return MMSYSERR_NOERROR;
    case Platform::RecordingFailure::NoDevice: return MMSYSERR_NODRIVER;
    case Platform::RecordingFailure::Forbidden: return MMSYSERR_ERROR;
    case Platform::RecordingFailure::InUse: return MMSYSERR_ALLOCATED;
    default: return WAVERR_BADFORMAT;
  }
}

}  // namespace

void RealMachine::WatchMicrophones() {
  if (!Platform::FindRecordingLibrary()) return;
  void* const find = reinterpret_cast<void*>(&FindFunction);
  void* const before = ReplaceImport("GetProcAddress", find, GetModuleHandleA("orec.dll"));
  if (before) findFunction = reinterpret_cast<decltype(findFunction)>(before);
}

void RealMachine::PutBackMicrophones() {
  const Lock lock(TheDevices().mutex);
  TheDevices().areSet = false;
  TheDevices().areGone = false;
  TheDevices().refusal = MMSYSERR_NOERROR;
  SetEvent(TheDevices().released);
}

namespace TestMachine {

void SetMicrophones(const std::vector<std::string>& names) {
  const Lock lock(TheDevices().mutex);
  TheDevices().areSet = true;
  TheDevices().areGone = false;
  TheDevices().names = names;
  ResetEvent(TheDevices().released);
}

void RefuseMicrophones(Platform::RecordingFailure why) {
  const Lock lock(TheDevices().mutex);
  TheDevices().refusal = CodeOf(why);
}

void UnplugMicrophones() {
  const Lock lock(TheDevices().mutex);
  TheDevices().areGone = true;
  TheDevices().names.clear();
}

void Speak(const Wave& wave) {
  Device* device = nullptr;
  {
    const Lock lock(TheDevices().mutex);
    ASSERT_FALSE(TheDevices().open.empty());
    device = TheDevices().open.back();
  }
  const auto isListening = [&] {
    const Lock lock(TheDevices().mutex);
    return device->isStarted && !device->buffers.empty();
  };
  for (size_t place = 0; place < wave.samples.size();) {
    ASSERT_TRUE(E2e::ComesTrue(isListening));
    const Lock lock(TheDevices().mutex);
    WAVEHDR& header = *device->buffers.front();
    const size_t size = std::min<size_t>(header.dwBufferLength, wave.samples.size() - place);
    std::memcpy(header.lpData, wave.samples.data() + place, size);
    header.dwBytesRecorded = static_cast<DWORD>(size);
    place += size;
    if (size == header.dwBufferLength) GiveBack(*device);
  }
}

}  // namespace TestMachine
