// Holds a checker of files to a plain one beside it, on files that are made at random.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>

#include "machine/simulated/Machine.h"
#include "tests/RandomText.h"
#include "tests/ReferenceCheck.h"

struct VerdictProperty {
  std::string path;  // where the files are put
  std::function<std::string(RandomText&)> makeFile;
  // As CheckTrackFile and CheckVehicleFile are.
  std::function<int32_t(const std::string& path, int32_t& code, std::string& message)> check;
  std::function<Reference::Verdict(const std::string& path, const std::string& bytes)> reference;
  // Each code from the first to the last one must be found now and then.
  int32_t firstCode;
  int32_t lastCode;
};

// One file, however small the pieces are in which it is read and whatever the separators are.
inline Reference::Verdict VerdictOf(Simulated::Machine& machine, const VerdictProperty& property,
                                    const std::string& bytes, size_t mostAtOnce, bool hasComma) {
  machine.files.Put(property.path, bytes);
  machine.files.LimitReads(mostAtOnce);
  machine.locale.SetSeparators(hasComma ? "," : ".", hasComma ? "." : ",");
  Reference::Verdict found{};
  found.result = property.check(property.path, found.code, found.message);
  return found;
}

// Both say the same of thousands of files.
inline void ExpectTheVerdictsOfThePlainChecker(Simulated::Machine& machine, RandomText random,
                                               const VerdictProperty& property) {
  std::map<int32_t, int> timesFound;
  for (int i = 0; i < 6000; ++i) {
    const std::string bytes = property.makeFile(random);
    const auto found = VerdictOf(machine, property, bytes, 1 + random.Below(40), i % 2 != 0);
    ASSERT_EQ(found, property.reference(property.path, bytes)) << testing::PrintToString(bytes);
    ++timesFound[found.code];
  }
  for (int32_t code = property.firstCode; code <= property.lastCode; ++code) {
    EXPECT_GT(timesFound[code], 20) << "files with code " << code << " hardly occurred";
  }
}

// Both also say the same of files with a very long line, but that a message quotes less of it.
inline void ExpectTheVerdictsOnLongLines(Simulated::Machine& machine, RandomText random,
                                         const VerdictProperty& property) {
  const auto ends = [](const std::string& message) {
    return message.size() < 100 ? message
                                : message.substr(0, 80) + message.substr(message.size() - 15);
  };
  std::map<int32_t, int> timesFound;
  for (int i = 0; i < 150; ++i) {
    const std::string bytes = random.Stretched(property.makeFile(random));
    const auto found = VerdictOf(machine, property, bytes, 100 + random.Below(90000), i % 2 != 0);
    const auto wanted = property.reference(property.path, bytes);
    const auto what = [&] { return testing::PrintToString(bytes.substr(0, 300)); };
    ASSERT_EQ(found.result, wanted.result) << what();
    ASSERT_EQ(found.code, wanted.code) << what();
    ASSERT_EQ(ends(found.message), ends(wanted.message)) << what();
    ++timesFound[found.code];
  }
  EXPECT_GT(timesFound.size(), 2U) << "hardly a fault occurred";
}
