// The ground of a test that tells what a user does with the program and what comes of it.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "machine/simulated/Machine.h"
#include "tests/Matchers.h"

class Story : public testing::Test {
 protected:
  Simulated::Machine machine;
  Simulated::User& user = machine.user;
};
