#include "tracks/TrackChecker.h"

#include <exception>
#include <limits>
#include <string_view>

#include "base/Maths.h"
#include "base/RuntimeError.h"
#include "base/SharedTexts.h"
#include "platform/FileLines.h"
#include "platform/Numbers.h"
#include "text/StringTable.h"
#include "tracks/TrackFormat.h"
#include "tracks/TrackTexts.h"

namespace {

// What a line stands for. A line after a complete part is the end marker or the next curve.
enum Position { Start, Curve, Surface, Length, End, Weather };

struct Range {
  int32_t low;
  int32_t high;
  bool Holds(int32_t value) const { return value >= low && value <= high; }
};

constexpr int32_t EndMarker = -1;
constexpr Range CurveRange{0, TrackFormat::Curves.size() - 1};
constexpr Range SurfaceRange{0, TrackFormat::Surfaces.size() - 1};
constexpr Range LengthRange{TrackFormat::ShortestPart, std::numeric_limits<int32_t>::max()};
constexpr Range WeatherRange{0, 1};
constexpr Range Ranges[] = {
    {}, CurveRange, SurfaceRange, LengthRange, {EndMarker, EndMarker}, WeatherRange};

class Checker {
 public:
  explicit Checker(const FaultTaker& take) : take_(take) {}

  // See FindTrackFaults.
  TrackSummary Check(Platform::FileLines& lines);

 private:
  void TakeLines(Platform::FileLines& lines);
  // Returns whether the next line is wanted.
  bool TakeLine(std::string_view line);
  void TakeUnconverted(const RuntimeError& error);
  void FailNotNumeric();
  void FailOutOfRange();
  void Fail(int32_t code, const std::string& message);
  std::string Prefix() const;

  const FaultTaker& take_;
  int64_t lines_ = 0;
  int64_t part_ = 1;
  int position_ = Start;
  bool isOver_ = false;  // no more lines are wanted, or it is not known what they stand for
  bool hasFault_ = false;
};

std::string InBrackets(const std::string& text) {
  return "(" + text + "): ";
}

// The text of a range, such as "... must be between 0 and 3.".
std::string TextOf(const LangText& text, const Range& range, const LangText& word) {
  return GetLangString(text) + " " + std::to_string(range.low) + " " + GetLangString(word) + " " +
         std::to_string(range.high) + ".";
}

TrackSummary Checker::Check(Platform::FileLines& lines) {
  bool isAtEnd = false;
  while (!isAtEnd && !isOver_) {
    // Around all lines and not around each, since nearly all of them are numbers.
    try {
      TakeLines(lines);
      isAtEnd = true;
    } catch (const RuntimeError& error) {
      const bool isOfANumber =
          error.number() == RuntimeError::Overflow || error.number() == RuntimeError::TypeMismatch;
      if (!isOfANumber) throw;
      TakeUnconverted(error);
    }
  }
  if (isOver_) return {lines_, ""};
  // Lines behind the weather mean nothing; the message only tells how many lines the file has.
  while (lines.Skip()) ++lines_;
  if (position_ < End) {
    Fail(TrackFault::NoEnd,
         InBrackets(GetLangString(TrackTexts.End)) + GetLangString(TrackTexts.NoTrackEnd));
  }
  if (hasFault_) return {lines_, ""};
  return {lines_, std::to_string(lines_) + " " + GetLangString(TrackTexts.Lines) + ", " +
                      std::to_string(part_) + " " + GetLangString(TrackTexts.Parts) + ", " +
                      GetLangString(TrackTexts.CTFCheckTrackSuccessful)};
}

void Checker::TakeLines(Platform::FileLines& lines) {
  std::string_view line;
  while (position_ != Weather && lines.Next(line)) {
    ++lines_;
    ++position_;
    if (!TakeLine(line)) return;
  }
}

bool Checker::TakeLine(std::string_view line) {
  const auto value = Platform::ParseWhole(line);
  if (!value) [[unlikely]] {
    FailNotNumeric();
    return !isOver_;
  }
  // Any number but -1 behind a complete part begins the next part, one that is no curve included:
  // the fault is then told as that part's.
  if (position_ == End && *value != EndMarker) {
    ++part_;
    position_ = Curve;
  }
  if (!Ranges[position_].Holds(*value)) [[unlikely]] {
    FailOutOfRange();
    return !isOver_;
  }
  return true;
}

// A number that does not fit 32 bits, or a text where the next part or the weather may begin.
void Checker::TakeUnconverted(const RuntimeError& error) {
  const bool isText = error.number() == RuntimeError::TypeMismatch;
  // A number, however large, begins the next part.
  if (!isText && position_ == End) {
    ++part_;
    position_ = Curve;
  }
  Fail(TrackFault::Unreadable, GetLangString(CauseOf(error)));
  // Whether the track ends at such a text, or goes on, nobody knows.
  if (isText && position_ == End) isOver_ = true;
}

void Checker::FailOutOfRange() {
  switch (position_) {
    case Curve:
      return Fail(TrackFault::CurveOutOfRange, Prefix() + TextOf(TrackTexts.CTFTrackPartOutOfRange,
                                                                 CurveRange, SharedTexts.And));
    case Surface:
      return Fail(TrackFault::SurfaceOutOfRange,
                  Prefix() + TextOf(TrackTexts.CTFTrackSurfaceTypeOutOfRange, SurfaceRange,
                                    SharedTexts.And));
    case Length:
      return Fail(TrackFault::LengthTooLow,
                  Prefix() + GetLangString(TrackTexts.CTFTrackSectionLengthTooLow) + " " +
                      std::to_string(LengthRange.low) + " " + GetLangString(TrackTexts.OrMore) +
                      ".");
    case Weather:
      return Fail(TrackFault::WeatherOutOfRange,
                  InBrackets(GetLangString(TrackTexts.End)) +
                      TextOf(TrackTexts.CTFWeatherOutOfRange, WeatherRange, SharedTexts.Or));
  }
}

// A line that is no number is a fault with words of its own within a part only; where the next part
// or the weather may begin, it is converted untested.
void Checker::FailNotNumeric() {
  switch (position_) {
    case Curve:
      return Fail(TrackFault::CurveNotNumeric,
                  Prefix() + GetLangString(TrackTexts.CTFInvalidTrackCurveFormat));
    case Surface:
      return Fail(TrackFault::SurfaceNotNumeric,
                  Prefix() + GetLangString(TrackTexts.CTFInvalidTrackSurfaceTypeFormat));
    case Length:
      return Fail(TrackFault::LengthNotNumeric,
                  Prefix() + GetLangString(TrackTexts.CTFInvalidTrackLengthFormat));
    default: throw RuntimeError(RuntimeError::TypeMismatch);
  }
}

void Checker::Fail(int32_t code, const std::string& message) {
  hasFault_ = true;
  if (!take_({lines_, code, message})) isOver_ = true;
}

// Where the fault is: the line of the part and the part, such as "(L2P5): ".
std::string Checker::Prefix() const {
  return InBrackets(GetLangString(TrackTexts.LineFirstLetter) + std::to_string(position_) +
                    GetLangString(TrackTexts.PartFirstLetter) + std::to_string(part_));
}

}  // namespace

TrackSummary FindTrackFaults(Platform::FileLines& lines, const FaultTaker& take) {
  return Checker(take).Check(lines);
}

int32_t CheckTrackFile(const std::string& path, int32_t& code, std::string& message) {
  try {
    Platform::FileLines lines(path);
    Fault fault;
    const TrackSummary summary = FindTrackFaults(lines, [&](const Fault& first) {
      fault = first;
      return false;
    });
    if (fault.code == TrackFault::Unreadable) throw RuntimeError(RuntimeError::TypeMismatch);
    // Before anything is handed out: a count beyond 32 bits fails, and the verdict is another.
    const int32_t count = Maths::ToInt32(static_cast<double>(summary.lines));
    code = fault.code;
    message = code != 0 ? fault.message : summary.message;
    return code != 0 ? count : 0;
  } catch (const std::exception&) {
    code = TrackFault::Unreadable;
    message = InBrackets(GetLangString(TrackTexts.General)) + path + " " +
              GetLangString(TrackTexts.DoesNotExist);
    return -1;
  }
}
