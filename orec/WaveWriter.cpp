#include "orec/WaveWriter.h"

#include <algorithm>
#include <utility>

namespace ORec {

namespace {

constexpr uint64_t HeaderSize = 44;

// A number of so many bytes, the low one first.
std::string Number(uint64_t number, int size) {
  std::string bytes;
  for (int i = 0; i < size; ++i) bytes += static_cast<char>(number >> (8 * i));
  return bytes;
}

std::string Header(const Format& format, uint64_t size) {
  constexpr int Pcm = 1;
  const auto rate = static_cast<uint64_t>(format.rate);
  return "RIFF" + Number(HeaderSize - 8 + size, 4) + "WAVE" + "fmt " + Number(16, 4) +
         Number(Pcm, 2) + Number(static_cast<uint64_t>(format.channels), 2) + Number(rate, 4) +
         Number(rate * format.FrameSize(), 4) + Number(format.FrameSize(), 2) +
         Number(Format::SampleBits, 2) + "data" + Number(size, 4);
}

}  // namespace

WaveWriter::WaveWriter(std::unique_ptr<TargetFile> file, const Format& format)
    : file_(std::move(file)), format_(format) {}

std::unique_ptr<WaveWriter> WaveWriter::Create(const std::string& path, const Format& format) {
  auto file = TargetFile::Open(path);
  if (!file) return nullptr;
  std::unique_ptr<WaveWriter> writer(new WaveWriter(std::move(file), format));
  return writer->WriteHeader() ? std::move(writer) : nullptr;
}

// In one go, so that nobody meets one size without the other.
bool WaveWriter::WriteHeader() {
  return file_->WriteAt(0, Header(format_, size_));
}

bool WaveWriter::Write(std::string_view samples) {
  // Half a frame would change the sides of all that follows it.
  const uint64_t room = (LargestSound - size_) / format_.FrameSize() * format_.FrameSize();
  const std::string_view fitting = samples.substr(0, std::min<uint64_t>(samples.size(), room));
  if (!file_->WriteAt(HeaderSize + size_, fitting)) return false;
  size_ += fitting.size();
  return WriteHeader() && fitting.size() == samples.size();
}

}  // namespace ORec
