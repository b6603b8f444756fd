// Pages of any bytes in place of the one that tells the address: what is read from them is what a
// plain second reading of the rule gives, or they are not understood.
#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/RuntimeError.h"
#include "fuzz/Require.h"
#include "internet/AddressPage.h"

namespace {

std::vector<std::string> LinesAtCarriageReturns(const std::string& page) {
  std::vector<std::string> lines;
  std::string line;
  for (size_t i = 0; i < page.size(); ++i) {
    const bool isLast = i + 1 == page.size();
    if (page[i] != '\r') line += page[i];
    if (page[i] != '\r' && !isLast) continue;
    lines.push_back(line);
    line.clear();
    if (!isLast && page[i] == '\r' && page[i + 1] == '\n') ++i;
  }
  return lines;
}

// Nothing if the line has too few fields.
std::optional<std::string> AddressInLine(const std::string& line) {
  std::vector<std::string> fields(1);
  for (const char c : line) {
    if (c == '.') {
      fields.emplace_back();
    } else {
      fields.back() += c;
    }
  }
  if (fields.size() < 15) return std::nullopt;
  while (fields[11].size() > 4) fields[11].erase(0, 1);
  fields[14].resize(std::min<size_t>(fields[14].size(), 4));
  std::string address = fields[11] + "." + fields[12] + "." + fields[13] + "." + fields[14];
  while (!address.empty() && address.front() == ' ') address.erase(0, 1);
  while (!address.empty() && address.back() == ' ') address.pop_back();
  return address;
}

// Nothing if the page cannot be understood.
std::optional<std::string> AddressByTheRule(const std::string& page) {
  std::string address;
  for (const std::string& line : LinesAtCarriageReturns(page)) {
    const auto found = AddressInLine(line);
    if (!found) return std::nullopt;
    address = *found;
  }
  return address;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string page(reinterpret_cast<const char*>(data), size);
  const std::optional<std::string> expected = AddressByTheRule(page);
  try {
    Require(AddressPage::AddressIn(page) == expected);
  } catch (const RuntimeError& error) {
    Require(error.number() == RuntimeError::SubscriptOutOfRange && !expected);
  }
  return 0;
}
