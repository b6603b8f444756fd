// What the recording library writes, with any sound, in pieces of any size, on a disk that becomes
// full at any byte: whatever has happened so far, the pack's reader gets the sound that was written
// until then, whole.
#include <algorithm>
#include <cstdint>
#include <string>

#include "base/RuntimeError.h"
#include "base/Wave.h"
#include "fuzz/Require.h"
#include "orec/WaveWriter.h"

namespace {

std::string disk;
uint64_t room = 0;
// Called after each write, also after one that was cut off.
void Look();

}  // namespace

struct ORec::TargetFile::Native {};

ORec::TargetFile::TargetFile() = default;
ORec::TargetFile::~TargetFile() = default;

std::unique_ptr<ORec::TargetFile> ORec::TargetFile::Open(const std::string&) {
  disk.clear();
  return std::unique_ptr<TargetFile>(new TargetFile);
}

bool ORec::TargetFile::WriteAt(uint64_t place, std::string_view bytes) {
  const uint64_t left = place < room ? room - place : 0;
  const std::string_view written = bytes.substr(0, std::min<uint64_t>(left, bytes.size()));
  disk.resize(std::max(disk.size(), static_cast<size_t>(place) + written.size()));
  disk.replace(static_cast<size_t>(place), written.size(), written);
  Look();
  return written.size() == bytes.size();
}

namespace {

constexpr size_t HeaderSize = 44;
ORec::Format format;
std::string handedOver;  // all sound so far

std::string SoundOnDisk() {
  try {
    const Wave wave = DecodeWave(disk);
    Require(wave.channels == format.channels && wave.rate == format.rate && wave.bits == 16);
    return wave.samples;
  } catch (const RuntimeError&) {
    return {};  // there is none yet
  }
}

void Look() {
  if (disk.size() < HeaderSize) return;
  const std::string sound = SoundOnDisk();
  Require(handedOver.starts_with(sound) && sound.size() % format.FrameSize() == 0);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size < 4) return 0;
  format = {data[0] & 1 ? 44'100 : 8'000, data[0] & 2 ? 2 : 1};
  room = data[0] & 4 ? UINT64_MAX : HeaderSize + data[1] * size / 128;
  const size_t piece = (1U + data[2]) * format.FrameSize();
  data += 3;
  size -= 3;
  handedOver.clear();
  const auto writer = ORec::WaveWriter::Create("", format);
  Require(writer != nullptr);
  const std::string sound(reinterpret_cast<const char*>(data), size);
  const size_t whole = sound.size() / format.FrameSize() * format.FrameSize();
  for (size_t at = 0; at < whole; at += piece) {
    const std::string samples = sound.substr(at, std::min(piece, whole - at));
    const std::string before = handedOver;
    handedOver += samples;
    if (!writer->Write(samples)) {
      Require(SoundOnDisk() == before);
      Require(room != UINT64_MAX);
      return 0;
    }
    Require(SoundOnDisk() == handedOver);
  }
  return 0;
}
