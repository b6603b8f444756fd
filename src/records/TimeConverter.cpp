#include "records/TimeConverter.h"

#include <cstdlib>

#include "records/RecordTexts.h"
#include "records/TimeParts.h"
#include "text/StringTable.h"

namespace {

constexpr int32_t Second = 1000;

// Milliseconds as seconds: 12345 gives "12.345", 5500 "5.5", 1000 "1".
std::string SecondsText(int32_t milliseconds) {
  std::string text = milliseconds < 0 ? "-" : "";
  text += std::to_string(std::abs(milliseconds) / Second);
  // In whole numbers: a double would show 12.344999999999999 for some times. A thousand is added so
  // that the zeros before the fraction's own digits are there.
  if (const int32_t fraction = std::abs(milliseconds) % Second; fraction != 0) {
    text += "." + std::to_string(Second + fraction).substr(1);
    text.erase(text.find_last_not_of('0') + 1);
  }
  return text;
}

std::string Quantity(const std::string& number, bool isOne, LangText one, LangText several) {
  return number + " " + GetLangString(isOne ? one : several);
}

// The comma and the blank stay where nothing follows them: "2 hours, " has always been shown so.
std::string InWords(const TimeParts& parts) {
  std::string text;
  // What is zero is left out, and so is what came out negative.
  if (parts.hours >= 1) {
    text += Quantity(std::to_string(parts.hours), parts.hours == 1, RecordTexts.Hour,
                     RecordTexts.Hours) +
            ", ";
  }
  if (parts.minutes >= 1) {
    text += Quantity(std::to_string(parts.minutes), parts.minutes == 1, RecordTexts.Minute,
                     RecordTexts.Minutes) +
            ", ";
  }
  if (parts.milliseconds >= Second) {
    text += Quantity(SecondsText(parts.milliseconds), parts.milliseconds == Second,
                     RecordTexts.Second, RecordTexts.Seconds);
  }
  return text;
}

}  // namespace

std::string TimeConverter(int32_t milliseconds, TimeForm form) {
  const TimeParts parts = Divide(milliseconds);
  if (form == TimeForm::Words) return InWords(parts);
  return std::to_string(parts.hours) + ":" + std::to_string(parts.minutes) + ":" +
         SecondsText(parts.milliseconds);
}
