#include "internet/AddressPage.h"

#include <algorithm>
#include <array>

#include "base/LineReader.h"
#include "base/RuntimeError.h"
#include "base/Text.h"
#include "internet/InternetTexts.h"

namespace AddressPage {

namespace {

// The fields of the four octets.
constexpr size_t First = 11;
constexpr size_t Last = 14;
// An octet has three digits, and the page has one blank or more beside it.
constexpr size_t OctetWidth = 4;

std::string AddressInLine(std::string_view line) {
  std::array<std::string_view, Last + 1> fields;
  size_t begin = 0;
  for (size_t field = 0; field <= Last; ++field) {
    if (begin > line.size()) {
      throw RuntimeError(RuntimeError::SubscriptOutOfRange, InternetTexts.AddressPageNotUnderstood);
    }
    const size_t end = std::min(line.find('.', begin), line.size());
    fields[field] = line.substr(begin, end - begin);
    begin = end + 1;
  }
  std::string_view first = fields[First];
  if (first.size() > OctetWidth) first.remove_prefix(first.size() - OctetWidth);
  std::string address(first);
  for (size_t field = First + 1; field < Last; ++field) address.append(".").append(fields[field]);
  address.append(".").append(fields[Last].substr(0, OctetWidth));
  return std::string(Text::Trim(address));
}

}  // namespace

std::string AddressIn(std::string_view page) {
  std::string address;
  for (const std::string& line : LinesOf(page)) address = AddressInLine(line);
  return address;
}

}  // namespace AddressPage
