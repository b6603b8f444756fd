#include "e2e/driver/Recording.h"

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <stdexcept>

#include "e2e/driver/Wait.h"

namespace E2e {
namespace {

constexpr int Rate = 44'100;

size_t SamplesIn(std::ifstream& file) {
  file.seekg(0, std::ios::end);
  return static_cast<size_t>(file.tellg()) / sizeof(int16_t);
}

std::ifstream Opened(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("the recording cannot be read: " + path);
  return file;
}

}  // namespace

Recording::Recording(const std::string& file) : file_(file) {
  std::ifstream opened = Opened(file_);
  begin_ = SamplesIn(opened);
}

Sound Recording::SoFar() const {
  std::ifstream file = Opened(file_);
  const size_t end = SamplesIn(file);
  if (end <= begin_) return {Rate, {}};
  std::vector<int16_t> samples(end - begin_);
  file.seekg(static_cast<std::streamoff>(begin_ * sizeof(int16_t)));
  file.read(reinterpret_cast<char*>(samples.data()),
            static_cast<std::streamsize>(samples.size() * sizeof(int16_t)));
  Sound sound{Rate, {}};
  sound.samples.reserve(samples.size());
  for (const int16_t sample : samples) sound.samples.push_back(static_cast<float>(sample) / 32'768);
  return sound;
}

void Recording::WaitForSound() {
  WaitUntil("a sound", [this] {
    const Sound sound = SoFar();
    const auto first = std::find_if(sound.samples.begin(), sound.samples.end(),
                                    [](float sample) { return std::abs(sample) > Silence; });
    // What is silent need not be looked at again.
    begin_ += static_cast<size_t>(first - sound.samples.begin());
    return first != sound.samples.end();
  });
}

Sound Recording::WaitForSilence(double seconds) {
  Sound heard;
  WaitUntil("silence", [&] {
    heard = SoFar();
    return heard.Seconds() >= seconds && IsSilent(Part(heard, heard.Seconds() - seconds, seconds));
  });
  return Part(heard, 0, heard.Seconds() - seconds);
}

Sound Recording::Take(double seconds) {
  const auto count = static_cast<size_t>(seconds * Rate);
  Sound heard;
  WaitUntil("more of the recording", [&] {
    heard = SoFar();
    return heard.samples.size() >= count;
  });
  heard.samples.resize(count);
  begin_ += count;
  return heard;
}

}  // namespace E2e
