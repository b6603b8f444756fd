// Runs the tests on the simulated machine. What the machine complains about is a failure.
#include <gtest/gtest.h>

#include "machine/simulated/Complaints.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  Simulated::OnComplaint([](const std::string& what) { ADD_FAILURE() << what; });
  return RUN_ALL_TESTS();
}
