#include "orec/Input.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "orec/win32/CodePage.h"
#include "orec/win32/System.h"

namespace ORec {

namespace {

// The system's functions for input devices. Their library is no import of this one: what a library
// imports is looked for beside the program first, where a file of that name could lie that is not
// the system's.
struct WaveIn {
  decltype(&waveInGetNumDevs) getNumDevs;
  decltype(&waveInGetDevCapsW) getDevCaps;
  decltype(&waveInOpen) open;
  decltype(&waveInPrepareHeader) prepare;
  decltype(&waveInUnprepareHeader) unprepare;
  decltype(&waveInAddBuffer) add;
  decltype(&waveInStart) start;
  decltype(&waveInStop) stop;
  decltype(&waveInReset) reset;
  decltype(&waveInClose) close;
};

template <class Function>
bool Find(HMODULE library, const char* name, Function& function) {
  function = reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name)));
  return function != nullptr;
}

// Null if the system lacks them.
const WaveIn* FindWaveIn() {
  static WaveIn calls{};
  static const bool isThere = [] {
    const HMODULE library = LoadLibraryExW(L"winmm.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    return library && Find(library, "waveInGetNumDevs", calls.getNumDevs) &&
           Find(library, "waveInGetDevCapsW", calls.getDevCaps) &&
           Find(library, "waveInOpen", calls.open) &&
           Find(library, "waveInPrepareHeader", calls.prepare) &&
           Find(library, "waveInUnprepareHeader", calls.unprepare) &&
           Find(library, "waveInAddBuffer", calls.add) &&
           Find(library, "waveInStart", calls.start) && Find(library, "waveInStop", calls.stop) &&
           Find(library, "waveInReset", calls.reset) && Find(library, "waveInClose", calls.close);
  }();
  return isThere ? &calls : nullptr;
}

WAVEFORMATEX Described(const Format& format) {
  WAVEFORMATEX described{};
  described.wFormatTag = WAVE_FORMAT_PCM;
  described.nChannels = static_cast<WORD>(format.channels);
  described.nSamplesPerSec = static_cast<DWORD>(format.rate);
  described.wBitsPerSample = Format::SampleBits;
  described.nBlockAlign = static_cast<WORD>(format.FrameSize());
  described.nAvgBytesPerSec = described.nSamplesPerSec * described.nBlockAlign;
  return described;
}

}  // namespace

int CountInputs() {
  const WaveIn* calls = FindWaveIn();
  return calls ? static_cast<int>(calls->getNumDevs()) : 0;
}

std::string NameOfInput(int number) {
  WAVEINCAPSW caps{};
  const WaveIn* calls = FindWaveIn();
  if (!calls || calls->getDevCaps(static_cast<UINT_PTR>(number), &caps, sizeof caps)) return {};
  // Nobody promises that a name of the full length has an end.
  caps.szPname[MAXPNAMELEN - 1] = L'\0';
  return Narrow(caps.szPname);
}

struct Input::Native {
  struct Buffer {
    WAVEHDR header{};
    std::vector<char> bytes;
  };

  const WaveIn* calls = FindWaveIn();
  HWAVEIN device = nullptr;
  HANDLE event = nullptr;
  std::vector<Buffer> buffers;
};

Input::Input() : native_(std::make_unique<Native>()) {}

Code Input::Open(int number, const Format& format, Buffers buffers,
                 std::unique_ptr<Input>& opened) {
  std::unique_ptr<Input> input(new Input);
  Native& native = *input->native_;
  if (!native.calls) return Code::NoDriver;
  native.event = CreateEventW(nullptr, FALSE, FALSE, nullptr);
  if (!native.event) return Code::NoDriver;
  native.buffers.resize(buffers.count);
  for (Native::Buffer& buffer : native.buffers) buffer.bytes.resize(buffers.size);
  const WAVEFORMATEX described = Described(format);
  // By an event, because hardly anything may be called in a callback, and what may not be waits for
  // ever. And without WAVE_FORMAT_DIRECT: the system converts what the device does not have.
  const MMRESULT result =
      native.calls->open(&native.device, static_cast<UINT>(number), &described,
                         reinterpret_cast<DWORD_PTR>(native.event), 0, CALLBACK_EVENT);
  if (result != MMSYSERR_NOERROR) {
    native.device = nullptr;
    return Code{result};
  }
  opened = std::move(input);
  return Code::None;
}

Input::~Input() {
  Native& native = *native_;
  bool isClosed = true;
  if (native.device) {
    native.calls->reset(native.device);
    for (size_t i = 0; i < native.buffers.size(); ++i) Take(i);
    isClosed = native.calls->close(native.device) == MMSYSERR_NOERROR;
  }
  // A device that does not let itself be closed may go on writing to the buffers and setting the
  // event: both are left to it.
  if (!isClosed) {
    [[maybe_unused]] const Native* left = native_.release();
    return;
  }
  if (native.event) CloseHandle(native.event);
}

Code Input::Give(size_t number) {
  Native& native = *native_;
  Native::Buffer& buffer = native.buffers[number];
  buffer.header = {};
  buffer.header.lpData = buffer.bytes.data();
  buffer.header.dwBufferLength = static_cast<DWORD>(buffer.bytes.size());
  MMRESULT result = native.calls->prepare(native.device, &buffer.header, sizeof buffer.header);
  if (result == MMSYSERR_NOERROR) {
    result = native.calls->add(native.device, &buffer.header, sizeof buffer.header);
  }
  return Code{result};
}

std::optional<std::string_view> Input::Take(size_t number) {
  Native& native = *native_;
  Native::Buffer& buffer = native.buffers[number];
  // Another thread of the system's sets it, the length first.
  if (!(*const_cast<volatile DWORD*>(&buffer.header.dwFlags) & WHDR_DONE)) return std::nullopt;
  native.calls->unprepare(native.device, &buffer.header, sizeof buffer.header);
  const size_t size = buffer.header.dwBytesRecorded;
  return std::string_view(buffer.bytes.data(), std::min(size, buffer.bytes.size()));
}

Code Input::Start() {
  return Code{native_->calls->start(native_->device)};
}

Code Input::Stop() {
  return Code{native_->calls->stop(native_->device)};
}

Code Input::Reset() {
  return Code{native_->calls->reset(native_->device)};
}

void Input::Wait(std::chrono::milliseconds atMost) {
  WaitForSingleObject(native_->event, static_cast<DWORD>(atMost.count()));
}

void Input::Wake() {
  SetEvent(native_->event);
}

}  // namespace ORec
