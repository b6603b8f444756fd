#include "machine/win32/System.h"

// Before dsound.h, which needs its types.
#include <mmsystem.h>

#include <dsound.h>

#include <cstring>

#include "base/RuntimeErrorTexts.h"
#include "machine/win32/FormWindow.h"
#include "machine/win32/SystemLibrary.h"
#include "platform/Sound.h"
#include "platform/SoundDevice.h"
#include "ui/Forms.h"

namespace Platform {

static_assert(SoundBufferFlags ==
              (DSBCAPS_CTRLFREQUENCY | DSBCAPS_CTRLPAN | DSBCAPS_CTRLVOLUME | DSBCAPS_GLOBALFOCUS));
static_assert(LowestRate == DSBFREQUENCY_MIN && HighestRate == DSBFREQUENCY_MAX);

namespace {

SystemFunction<decltype(::DirectSoundCreate8)> DirectSoundCreate8("dsound.dll",
                                                                  "DirectSoundCreate8");

struct Release {
  void operator()(IUnknown* object) const { object->Release(); }
};
template <class Interface>
using Owned = std::unique_ptr<Interface, Release>;

// The system takes no buffer of less than four bytes. A shorter sound is repeated in it, which
// sounds the same when it is looped.
size_t SizeInMemory(const Wave& wave) {
  const size_t size = wave.samples.size();
  return size * ((DSBSIZE_MIN + size - 1) / size);
}

void Check(HRESULT result, const LangText& step) {
  if (FAILED(result)) FailWithoutSound({step, static_cast<uint32_t>(result)});
}

}  // namespace

struct SoundDevice::Native {
  Owned<IDirectSound8> device;
};

SoundDevice::SoundDevice() : native_(std::make_unique<Native>()) {}
SoundDevice::~SoundDevice() = default;

std::unique_ptr<SoundDevice> SoundDevice::Open() {
  const LangText& step = RuntimeErrorTexts.OpeningSoundDevice;
  IDirectSound8* opened = nullptr;
  // Which code says that there is no device differs from system to system.
  Check(DirectSoundCreate8(nullptr, &opened, nullptr), step);
  std::unique_ptr<SoundDevice> device(new SoundDevice);
  device->native_->device.reset(opened);
  Check(opened->SetCooperativeLevel(WindowOf(MainForm()), DSSCL_NORMAL), step);
  return device;
}

struct SoundOnDevice::Native {
  HRESULT Fill(const Wave& wave) const {
    void* memory = nullptr;
    DWORD size = 0;
    const HRESULT locked =
        buffer->Lock(0, 0, &memory, &size, nullptr, nullptr, DSBLOCK_ENTIREBUFFER);
    if (FAILED(locked)) return locked;
    const bool fits = size == SizeInMemory(wave);
    for (size_t begin = 0; fits && begin < size; begin += wave.samples.size()) {
      std::memcpy(static_cast<char*>(memory) + begin, wave.samples.data(), wave.samples.size());
    }
    const HRESULT unlocked = buffer->Unlock(memory, size, nullptr, 0);
    return fits ? unlocked : DSERR_GENERIC;
  }

  Owned<IDirectSoundBuffer> buffer;
};

SoundOnDevice::SoundOnDevice() : native_(std::make_unique<Native>()) {}
SoundOnDevice::~SoundOnDevice() = default;

std::unique_ptr<SoundOnDevice> SoundOnDevice::Make(SoundDevice& device, const Wave& wave) {
  WAVEFORMATEX format{};
  format.wFormatTag = WAVE_FORMAT_PCM;
  format.nChannels = static_cast<WORD>(wave.channels);
  format.nSamplesPerSec = static_cast<DWORD>(wave.rate);
  format.wBitsPerSample = static_cast<WORD>(wave.bits);
  format.nBlockAlign = static_cast<WORD>(wave.FrameSize());
  format.nAvgBytesPerSec = format.nSamplesPerSec * format.nBlockAlign;
  DSBUFFERDESC description{};
  description.dwSize = sizeof description;
  description.dwFlags = SoundBufferFlags;
  description.dwBufferBytes = static_cast<DWORD>(SizeInMemory(wave));
  description.lpwfxFormat = &format;
  const LangText& step = RuntimeErrorTexts.MakingSoundBuffer;
  IDirectSoundBuffer* buffer = nullptr;
  Check(device.native().device->CreateSoundBuffer(&description, &buffer, nullptr), step);
  std::unique_ptr<SoundOnDevice> sound(new SoundOnDevice);
  sound->native_->buffer.reset(buffer);
  Check(sound->native_->Fill(wave), step);
  return sound;
}

void SoundOnDevice::Play(bool isLooping) {
  Check(native_->buffer->Play(0, 0, isLooping ? DSBPLAY_LOOPING : 0),
        RuntimeErrorTexts.PlayingSound);
}

bool SoundOnDevice::Stop() {
  const bool isStopped = SUCCEEDED(native_->buffer->Stop());
  return SUCCEEDED(native_->buffer->SetCurrentPosition(0)) && isStopped;
}

void SoundOnDevice::SetFrequency(int rate) {
  Check(native_->buffer->SetFrequency(static_cast<DWORD>(rate)),
        RuntimeErrorTexts.SettingFrequency);
}

bool SoundOnDevice::Restore(const Wave& wave) {
  return SUCCEEDED(native_->buffer->Restore()) && SUCCEEDED(native_->Fill(wave)) &&
         SUCCEEDED(native_->buffer->SetCurrentPosition(0));
}

SoundOnDevice::State SoundOnDevice::Ask() {
  DWORD status = 0;
  const HRESULT result = native_->buffer->GetStatus(&status);
  if (result == DSERR_BUFFERLOST) return State::Lost;
  if (FAILED(result)) return State::Broken;
  if (status & DSBSTATUS_BUFFERLOST) return State::Lost;
  return status & DSBSTATUS_PLAYING ? State::Playing : State::Silent;
}

}  // namespace Platform
