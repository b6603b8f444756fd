#include "update/Versions.h"

#include <array>
#include <cstdint>
#include <vector>

#include "base/LineReader.h"
#include "base/Text.h"
#include "platform/LetterCase.h"
#include "platform/Numbers.h"

namespace Versions {

namespace {

std::vector<std::string_view> Parts(std::string_view version) {
  std::vector<std::string_view> parts;
  for (;;) {
    const size_t dot = version.find('.');
    parts.push_back(version.substr(0, dot));
    if (dot == std::string_view::npos) return parts;
    version.remove_prefix(dot + 1);
  }
}

// The version resource of a program has sixteen bits for each number.
constexpr int32_t LargestNumber = 0xFFFF;

}  // namespace

std::string VersionIn(std::string_view records, std::string_view product,
                      std::string_view separator) {
  const std::string wanted = Platform::LowerCase(product);
  std::string version = NoVersion;
  for (const std::string& record : LinesOf(records)) {
    const std::string line = Platform::LowerCase(record);
    const size_t at = line.find(separator);
    if (at == std::string::npos) return InvalidVersionFile;
    if (line.substr(0, at) == wanted) version = line.substr(at + separator.size());
  }
  return version;
}

Comparison Compare(std::string_view version, const Platform::ProgramVersion& program) {
  std::string whole(version);
  if (whole.find('.') == std::string::npos) whole += ".0.0";
  const std::vector<std::string_view> parts = Parts(whole);
  const std::array<int, 3> own = {program.major, program.minor, program.revision};
  if (parts.size() != own.size()) return Invalid;
  // All three must be numbers before any of them is converted, which may fail.
  for (const std::string_view part : parts) {
    if (!Platform::ParseNumber(part)) return Invalid;
  }
  std::array<int32_t, 3> numbers{};
  for (size_t i = 0; i < own.size(); ++i) numbers[i] = Platform::ParseInt32(parts[i]);
  for (size_t i = 0; i < own.size(); ++i) {
    if (numbers[i] != own[i]) return numbers[i] > own[i] ? Newer : Older;
  }
  return Same;
}

std::optional<Platform::ProgramVersion> Published(std::string_view version) {
  const std::vector<std::string_view> parts = Parts(version);
  std::array<int32_t, 3> numbers{};
  if (parts.size() != numbers.size()) return std::nullopt;
  for (size_t i = 0; i < numbers.size(); ++i) {
    if (!Platform::ParsePlainInteger(parts[i], numbers[i])) return std::nullopt;
    if (parts[i].starts_with('-') || numbers[i] > LargestNumber) return std::nullopt;
  }
  return Platform::ProgramVersion{numbers[0], numbers[1], numbers[2], "", ""};
}

std::string RecordsOf(const std::vector<Record>& records) {
  std::string text;
  for (const Record& record : records) {
    text.append(record.product).append(Separator).append(record.version).append(Text::LineEnd);
  }
  return text;
}

}  // namespace Versions
