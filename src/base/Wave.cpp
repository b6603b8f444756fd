#include "base/Wave.h"

#include <algorithm>
#include <optional>

#include "base/RuntimeError.h"
#include "base/SoundTexts.h"

namespace {

constexpr uint32_t PcmTag = 1;
constexpr uint32_t FloatTag = 3;
constexpr uint32_t ExtensibleTag = 0xFFFE;

// What follows the tag in the GUID that names the format of an extensible wave file.
constexpr std::string_view GuidAfterTag("\0\0\0\0\x10\0\x80\0\0\xAA\0\x38\x9B\x71", 14);

// A little-endian number of so many bytes; they must be there.
uint32_t NumberAt(std::string_view bytes, size_t position, size_t size) {
  uint32_t number = 0;
  for (size_t i = 0; i < size; ++i) {
    number |= static_cast<uint32_t>(static_cast<unsigned char>(bytes[position + i])) << (8 * i);
  }
  return number;
}

struct Chunks {
  std::optional<std::string_view> format;
  std::optional<std::string_view> data;
};

// The first chunk of each kind, as far as the file holds it.
Chunks FindChunks(std::string_view bytes) {
  constexpr size_t HeaderSize = 8;
  Chunks found;
  // Behind "RIFF", the size of the rest and "WAVE".
  size_t position = 12;
  while (position < bytes.size() && bytes.size() - position >= HeaderSize) {
    const std::string_view name = bytes.substr(position, 4);
    const uint64_t size = NumberAt(bytes, position + 4, 4);
    const std::string_view body = bytes.substr(position + HeaderSize, size);
    if (name == "fmt " && !found.format) found.format = body;
    if (name == "data" && !found.data) found.data = body;
    // It reaches beyond the end of the file: nothing can follow.
    if (body.size() < size) break;
    // A chunk of an odd size has one more byte behind it.
    position += HeaderSize + body.size() + (size & 1);
  }
  return found;
}

// The tag of the format: of an extensible one that which its GUID names, nothing if that names
// none.
std::optional<uint32_t> TagOf(std::string_view format) {
  constexpr size_t GuidPosition = 24;
  const uint32_t tag = NumberAt(format, 0, 2);
  if (tag != ExtensibleTag) return tag;
  if (format.size() < GuidPosition + 2 + GuidAfterTag.size() ||
      format.substr(GuidPosition + 2, GuidAfterTag.size()) != GuidAfterTag) {
    return std::nullopt;
  }
  return NumberAt(format, GuidPosition, 2);
}

}  // namespace

Wave DecodeWave(std::string_view bytes, const std::string& file) {
  const auto fail = [&file](const LangText& cause) {
    throw RuntimeError(RuntimeError::InvalidCall, cause, file);
  };
  // What the file says of its own length is not asked: it may be wrong and nothing is lost.
  if (bytes.size() < 12 || !bytes.starts_with("RIFF") || bytes.substr(8, 4) != "WAVE") {
    fail(SoundTexts.SoundNotAWave);
  }
  const Chunks chunks = FindChunks(bytes);
  constexpr size_t FormatSize = 16;
  if (!chunks.format || chunks.format->size() < FormatSize) fail(SoundTexts.SoundDamaged);

  const std::string_view format = *chunks.format;
  const std::optional<uint32_t> tag = TagOf(format);
  if (!tag || *tag == FloatTag) fail(SoundTexts.SoundFormatNotSupported);
  if (*tag != PcmTag) fail(SoundTexts.SoundCompressed);
  const uint32_t channels = NumberAt(format, 2, 2);
  const uint32_t rate = NumberAt(format, 4, 4);
  const uint32_t frameSize = NumberAt(format, 12, 2);
  const uint32_t bits = NumberAt(format, 14, 2);
  const bool isSupported =
      (channels == 1 || channels == 2) && (bits == 8 || bits == 16 || bits == 24 || bits == 32) &&
      frameSize == channels * bits / 8 && rate >= LowestRate && rate <= HighestRate;
  if (!isSupported) fail(SoundTexts.SoundFormatNotSupported);

  const std::string_view data = chunks.data.value_or("");
  const size_t size = data.size() - data.size() % frameSize;
  if (size == 0) fail(SoundTexts.SoundHasNoData);
  return {static_cast<int>(channels), static_cast<int>(bits), static_cast<int>(rate),
          std::string(data.substr(0, size))};
}

Wave AtMost16Bits(Wave wave) {
  const size_t width = static_cast<size_t>(wave.bits) / 8;
  if (width <= 2) return wave;
  size_t end = 0;
  for (size_t sample = 0; sample < wave.samples.size(); sample += width) {
    // The low byte comes first: the upper ones are the last two.
    wave.samples[end++] = wave.samples[sample + width - 2];
    wave.samples[end++] = wave.samples[sample + width - 1];
  }
  wave.samples.resize(end);
  wave.bits = 16;
  return wave;
}
