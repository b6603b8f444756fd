// The sound device of the contract tests: the system's own, with somebody between it and the
// program who sees what is played, and can let it go away as when its plug is pulled. No real
// device can be made to do so on demand.
#include "tests/machine/RealMachine.h"

// Before dsound.h, which needs its types.
#include <mmsystem.h>

#include <dsound.h>

#include <algorithm>
#include <cstring>
#include <memory>

#include "e2e/driver/Wait.h"
#include "tests/machine/RealMachineImports.h"
#include "tests/machine/TestMachine.h"

namespace {

class WatchedBuffer;

struct Watch {
  bool isUnplugged = false;
  int device = 1;  // the number of the device that is there
  int failures = 0;
  std::optional<TestMachine::SoundCall> refused;  // what the device that is there refuses
  std::vector<WatchedBuffer*> buffers;            // in the order in which they were made

  // What is asked of a device that has gone away fails, with a code that changes from one time to
  // the next, and is none that the system's documents name for it.
  HRESULT Gone() {
    constexpr HRESULT Codes[] = {static_cast<HRESULT>(0x88890004), DSERR_BUFFERLOST, DSERR_GENERIC};
    return Codes[failures++ % std::size(Codes)];
  }
};

Watch& TheWatch() {
  static Watch watch;
  return watch;
}

bool IsRefused(TestMachine::SoundCall call) {
  return TheWatch().refused == call;
}

class WatchedBuffer final : public IDirectSoundBuffer {
 public:
  WatchedBuffer(IDirectSoundBuffer* buffer, int device, const DSBUFFERDESC& description)
      : buffer_(buffer), device_(device) {
    told_.channels = description.lpwfxFormat->nChannels;
    told_.bits = description.lpwfxFormat->wBitsPerSample;
    EXPECT_EQ(description.dwFlags, 0x80E0u);
    TheWatch().buffers.push_back(this);
  }
  virtual ~WatchedBuffer() { std::erase(TheWatch().buffers, this); }

  std::optional<TestMachine::SoundPlaying> Playing() {
    DWORD status = 0;
    DWORD rate = 0;
    EXPECT_EQ(buffer_->GetStatus(&status), DS_OK);
    if (!(status & DSBSTATUS_PLAYING)) return std::nullopt;
    EXPECT_EQ(buffer_->GetFrequency(&rate), DS_OK);
    TestMachine::SoundPlaying playing = told_;
    playing.rate = static_cast<int>(rate);
    playing.isLooping = status & DSBSTATUS_LOOPING;
    return playing;
  }

  void Silence() { buffer_->Stop(); }
  void GoToLastFrame() {
    buffer_->SetCurrentPosition(static_cast<DWORD>(told_.samples.size()) -
                                told_.channels * told_.bits / 8);
  }
  void Lose() {
    Silence();
    isLost_ = true;
    told_.samples.clear();
  }

  HRESULT STDMETHODCALLTYPE GetStatus(DWORD* status) override {
    if (IsGone()) return TheWatch().Gone();
    const HRESULT result = buffer_->GetStatus(status);
    if (isLost_) *status = DSBSTATUS_BUFFERLOST;
    return result;
  }
  HRESULT STDMETHODCALLTYPE Lock(DWORD offset, DWORD size, void** memory, DWORD* memorySize,
                                 void** rest, DWORD* restSize, DWORD flags) override {
    if (const HRESULT failure = Failure()) return failure;
    return buffer_->Lock(offset, size, memory, memorySize, rest, restSize, flags);
  }
  HRESULT STDMETHODCALLTYPE Unlock(void* memory, DWORD size, void* rest, DWORD restSize) override {
    if (const HRESULT failure = Failure()) return failure;
    told_.samples.assign(static_cast<const char*>(memory), size);
    return buffer_->Unlock(memory, size, rest, restSize);
  }
  HRESULT STDMETHODCALLTYPE Play(DWORD reserved, DWORD priority, DWORD flags) override {
    if (const HRESULT failure = Failure()) return failure;
    if (IsRefused(TestMachine::SoundCall::Play)) return DSERR_ALLOCATED;
    return buffer_->Play(reserved, priority, flags);
  }
  HRESULT STDMETHODCALLTYPE Stop() override {
    return IsGone() ? TheWatch().Gone() : buffer_->Stop();
  }
  HRESULT STDMETHODCALLTYPE SetCurrentPosition(DWORD position) override {
    return IsGone() ? TheWatch().Gone() : buffer_->SetCurrentPosition(position);
  }
  HRESULT STDMETHODCALLTYPE SetFrequency(DWORD rate) override {
    if (IsGone()) return TheWatch().Gone();
    if (IsRefused(TestMachine::SoundCall::SetFrequency)) return DSERR_ALLOCATED;
    return buffer_->SetFrequency(rate);
  }
  HRESULT STDMETHODCALLTYPE Restore() override {
    if (IsGone()) return TheWatch().Gone();
    isLost_ = false;
    return buffer_->Restore();
  }

  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = buffer_->Release();
    if (left == 0) delete this;
    return left;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return buffer_->AddRef(); }
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    return buffer_->QueryInterface(id, object);
  }
  HRESULT STDMETHODCALLTYPE GetCaps(DSBCAPS* caps) override { return buffer_->GetCaps(caps); }
  HRESULT STDMETHODCALLTYPE GetCurrentPosition(DWORD* play, DWORD* write) override {
    return IsGone() ? TheWatch().Gone() : buffer_->GetCurrentPosition(play, write);
  }
  HRESULT STDMETHODCALLTYPE GetFormat(WAVEFORMATEX* format, DWORD size, DWORD* written) override {
    return buffer_->GetFormat(format, size, written);
  }
  HRESULT STDMETHODCALLTYPE GetVolume(LONG* volume) override { return buffer_->GetVolume(volume); }
  HRESULT STDMETHODCALLTYPE GetPan(LONG* pan) override { return buffer_->GetPan(pan); }
  HRESULT STDMETHODCALLTYPE GetFrequency(DWORD* rate) override {
    return buffer_->GetFrequency(rate);
  }
  HRESULT STDMETHODCALLTYPE Initialize(IDirectSound* device, const DSBUFFERDESC* how) override {
    return buffer_->Initialize(device, how);
  }
  HRESULT STDMETHODCALLTYPE SetFormat(const WAVEFORMATEX* format) override {
    return buffer_->SetFormat(format);
  }
  HRESULT STDMETHODCALLTYPE SetVolume(LONG volume) override { return buffer_->SetVolume(volume); }
  HRESULT STDMETHODCALLTYPE SetPan(LONG pan) override { return buffer_->SetPan(pan); }

 private:
  bool IsGone() const { return device_ != TheWatch().device; }
  HRESULT Failure() const {
    if (IsGone()) return TheWatch().Gone();
    return isLost_ ? DSERR_BUFFERLOST : DS_OK;
  }

  IDirectSoundBuffer* const buffer_;
  const int device_;
  bool isLost_ = false;
  TestMachine::SoundPlaying told_;
};

class WatchedDevice final : public IDirectSound8 {
 public:
  explicit WatchedDevice(IDirectSound8* device) : device_(device), number_(TheWatch().device) {}
  virtual ~WatchedDevice() = default;

  HRESULT STDMETHODCALLTYPE CreateSoundBuffer(const DSBUFFERDESC* description,
                                              IDirectSoundBuffer** made, IUnknown* outer) override {
    if (number_ != TheWatch().device) return TheWatch().Gone();
    if (IsRefused(TestMachine::SoundCall::Make)) return DSERR_ALLOCATED;
    IDirectSoundBuffer* buffer = nullptr;
    const HRESULT result = device_->CreateSoundBuffer(description, &buffer, outer);
    *made = SUCCEEDED(result) ? new WatchedBuffer(buffer, number_, *description) : nullptr;
    return result;
  }
  HRESULT STDMETHODCALLTYPE SetCooperativeLevel(HWND window, DWORD level) override {
    EXPECT_TRUE(IsWindow(window));
    EXPECT_EQ(level, DWORD{DSSCL_NORMAL});
    return device_->SetCooperativeLevel(window, level);
  }

  ULONG STDMETHODCALLTYPE Release() override {
    EXPECT_TRUE(TheWatch().buffers.empty()) << "a device goes before its sounds";
    const ULONG left = device_->Release();
    if (left == 0) delete this;
    return left;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return device_->AddRef(); }
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    return device_->QueryInterface(id, object);
  }
  HRESULT STDMETHODCALLTYPE GetCaps(DSCAPS* caps) override { return device_->GetCaps(caps); }
  HRESULT STDMETHODCALLTYPE DuplicateSoundBuffer(IDirectSoundBuffer* buffer,
                                                 IDirectSoundBuffer** made) override {
    return device_->DuplicateSoundBuffer(buffer, made);
  }
  HRESULT STDMETHODCALLTYPE Compact() override { return device_->Compact(); }
  HRESULT STDMETHODCALLTYPE GetSpeakerConfig(DWORD* speakers) override {
    return device_->GetSpeakerConfig(speakers);
  }
  HRESULT STDMETHODCALLTYPE SetSpeakerConfig(DWORD speakers) override {
    return device_->SetSpeakerConfig(speakers);
  }
  HRESULT STDMETHODCALLTYPE Initialize(const GUID* which) override {
    return device_->Initialize(which);
  }
  HRESULT STDMETHODCALLTYPE VerifyCertification(DWORD* certified) override {
    return device_->VerifyCertification(certified);
  }

 private:
  IDirectSound8* const device_;
  const int number_;
};

decltype(&GetProcAddress) findFunction = &GetProcAddress;
decltype(&DirectSoundCreate8) createDevice = nullptr;

HRESULT WINAPI CreateWatchedDevice(const GUID* which, IDirectSound8** made, IUnknown* outer) {
  *made = nullptr;
  if (TheWatch().isUnplugged) return DSERR_NODRIVER;
  IDirectSound8* device = nullptr;
  const HRESULT result = createDevice(which, &device, outer);
  if (SUCCEEDED(result)) *made = new WatchedDevice(device);
  return result;
}

// The program finds the function that makes devices by its name, and gets this one.
FARPROC WINAPI FindFunction(HMODULE library, LPCSTR name) {
  const FARPROC found = findFunction(library, name);
  const bool isByName = reinterpret_cast<ULONG_PTR>(name) > 0xFFFF;
  if (!found || !isByName || std::strcmp(name, "DirectSoundCreate8") != 0) return found;
  createDevice = reinterpret_cast<decltype(createDevice)>(reinterpret_cast<void*>(found));
  return reinterpret_cast<FARPROC>(reinterpret_cast<void*>(&CreateWatchedDevice));
}

// Before the program looks for it the first time, and for good.
[[maybe_unused]] const bool isWatching = [] {
  void* const system =
      RealMachine::ReplaceImport("GetProcAddress", reinterpret_cast<void*>(&FindFunction));
  findFunction = reinterpret_cast<decltype(findFunction)>(system);
  return true;
}();

}  // namespace

namespace TestMachine {

bool HasSoundDevice() {
  return waveOutGetNumDevs() > 0;
}

std::vector<SoundPlaying> SoundsPlaying() {
  std::vector<SoundPlaying> all;
  for (WatchedBuffer* buffer : TheWatch().buffers) {
    if (auto playing = buffer->Playing()) all.push_back(*playing);
  }
  return all;
}

void LetSoundsEnd() {
  for (WatchedBuffer* buffer : TheWatch().buffers) {
    const auto playing = buffer->Playing();
    if (playing && !playing->isLooping) buffer->GoToLastFrame();
  }
  EXPECT_TRUE(E2e::ComesTrue([] {
    const auto sounds = SoundsPlaying();
    return std::all_of(sounds.begin(), sounds.end(),
                       [](const SoundPlaying& sound) { return sound.isLooping; });
  }));
}

void UnplugSoundDevice() {
  TheWatch().isUnplugged = true;
  ++TheWatch().device;
  for (WatchedBuffer* buffer : TheWatch().buffers) buffer->Silence();
}

void PlugInSoundDevice() {
  TheWatch().isUnplugged = false;
}

void LoseSounds() {
  for (WatchedBuffer* buffer : TheWatch().buffers) buffer->Lose();
}

void LetSoundDeviceRefuse(SoundCall call) {
  TheWatch().refused = call;
}

}  // namespace TestMachine

std::string& RealMachine::SpeakersFile() {
  static std::string file;
  return file;
}

void RealMachine::PutBackSound() {
  TestMachine::PlugInSoundDevice();
  TheWatch().refused.reset();
}
