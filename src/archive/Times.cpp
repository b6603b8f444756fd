#include "archive/Times.h"

#include <algorithm>
#include <chrono>

#include "archive/ZipFormat.h"
#include "platform/LocalTime.h"

namespace Archive {

namespace {

using std::chrono::day;
using std::chrono::days;
using std::chrono::month;
using std::chrono::sys_days;
using std::chrono::year;
using std::chrono::year_month_day;

constexpr uint64_t Second = 10'000'000;
constexpr uint64_t Day = 24 * uint64_t{60} * 60 * Second;
constexpr int FirstYear = 1980;
constexpr int LastYear = FirstYear + 127;
constexpr sys_days Start = year{1601} / 1 / 1;
constexpr uint64_t UnixStart = (sys_days{} - Start).count() * Day;

constexpr uint64_t StartOf(const year_month_day& date) {
  return static_cast<uint64_t>((sys_days{date} - Start).count()) * Day;
}
constexpr uint64_t First = StartOf(year{FirstYear} / 1 / 1);
constexpr uint64_t Last = StartOf(year{LastYear + 1} / 1 / 1) - 2 * Second;

uint64_t IfPlausible(uint64_t time) {
  return time >= First && time <= Last ? time : 0;
}

}  // namespace

uint32_t DosTimeOf(uint64_t time) {
  const uint64_t shown = std::clamp(Platform::ToLocalTime(time), First, Last);
  const year_month_day date{Start + days{shown / Day}};
  const auto years = static_cast<uint32_t>(static_cast<int>(date.year()) - FirstYear);
  const auto seconds = static_cast<uint32_t>(shown % Day / Second);
  const uint32_t dosDate = years << 9 | unsigned{date.month()} << 5 | unsigned{date.day()};
  return dosDate << 16 | seconds / 3600 << 11 | seconds / 60 % 60 << 5 | seconds % 60 / 2;
}

std::optional<uint64_t> FromDosTime(uint32_t dosTime) {
  const uint32_t dosDate = dosTime >> 16;
  const year_month_day date{year{FirstYear + static_cast<int>(dosDate >> 9)},
                            month{dosDate >> 5 & 15}, day{dosDate & 31}};
  const uint32_t hours = dosTime >> 11 & 31;
  const uint32_t minutes = dosTime >> 5 & 63;
  const uint32_t seconds = (dosTime & 31) * 2;
  if (!date.ok() || hours > 23 || minutes > 59 || seconds > 59) return std::nullopt;
  const uint64_t ofDay = (hours * 60 + minutes) * 60 + seconds;
  return Platform::FromLocalTime(StartOf(date) + ofDay * Second);
}

std::optional<uint32_t> UnixTimeOf(uint64_t time) {
  constexpr uint64_t Limit = uint64_t{1} << 31;
  if (time < UnixStart || (time - UnixStart) / Second >= Limit) return std::nullopt;
  return static_cast<uint32_t>((time - UnixStart) / Second);
}

uint64_t ExactTime(std::string_view extras) {
  if (const auto found = Zip::FindExtra(extras, Zip::WindowsTimesExtra)) {
    constexpr uint16_t Times = 1;
    const auto times = found->size() > 4 ? Zip::FindExtra(found->substr(4), Times) : std::nullopt;
    Zip::FieldReader fields(times.value_or(""));
    if (const uint64_t time = IfPlausible(fields.Take<uint64_t>())) return time;
  }
  if (const auto found = Zip::FindExtra(extras, Zip::UnixTimesExtra)) {
    Zip::FieldReader fields(*found);
    const bool hasLastWrite = (fields.Take<uint8_t>() & 1) != 0;
    const auto seconds = static_cast<int32_t>(fields.Take<uint32_t>());
    if (hasLastWrite && fields.HasAll() && seconds > 0) {
      return IfPlausible(UnixStart + static_cast<uint64_t>(seconds) * Second);
    }
  }
  return 0;
}

}  // namespace Archive
