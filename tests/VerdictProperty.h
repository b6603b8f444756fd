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

// Both say the same of thousands of files, whatever the user's separators are and in however small
// pieces the files are read.
inline void ExpectTheVerdictsOfThePlainChecker(Simulated::Machine& machine, RandomText random,
                                               const VerdictProperty& property) {
  std::map<int32_t, int> timesFound;
  for (int i = 0; i < 6000; ++i) {
    const std::string bytes = property.makeFile(random);
    machine.files.Put(property.path, bytes);
    machine.files.LimitReads(1 + random.Below(40));
    machine.locale.SetSeparators(i % 2 ? "," : ".", i % 2 ? "." : ",");
    Reference::Verdict found{};
    found.result = property.check(property.path, found.code, found.message);
    ASSERT_EQ(found, property.reference(property.path, bytes)) << testing::PrintToString(bytes);
    ++timesFound[found.code];
  }
  for (int32_t code = property.firstCode; code <= property.lastCode; ++code) {
    EXPECT_GT(timesFound[code], 20) << "files with code " << code << " hardly occurred";
  }
}
