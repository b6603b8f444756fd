#include "vehicles/InternalSounds.h"

#include <gmock/gmock.h>

#include <set>

namespace {

using testing::ElementsAre;
using testing::SizeIs;

TEST(InternalSounds, EachKindOfAVehicleHasItsResource) {
  EXPECT_EQ(InternalSoundResourceName("enginesound", "car1"), "car1engine");
  EXPECT_EQ(InternalSoundResourceName("throttlesound", "car2"), "car2throttle");
  EXPECT_EQ(InternalSoundResourceName("startsound", "cycle2"), "cycle2ignition");
  EXPECT_EQ(InternalSoundResourceName("hornsound", "car6"), "car6horn");
}

// Every variable with every value that could be taken for a sound of the game.
TEST(InternalSounds, ThereAreTheseAndNoOthers) {
  std::set<std::string> found;
  for (const std::string_view variable : VehicleVariableNames) {
    for (const char* vehicle : {"car", "cycle"}) {
      for (int number = 0; number < 12; ++number) {
        const std::string value = vehicle + std::to_string(number);
        const std::string resource = InternalSoundResourceName(variable, value);
        if (!resource.empty()) found.insert(std::string(variable) + "=" + value + ": " + resource);
      }
    }
  }
  EXPECT_THAT(found,
              ElementsAre("enginesound=car1: car1engine", "enginesound=car2: car2engine",
                          "enginesound=car3: car3engine", "enginesound=car4: car4engine",
                          "enginesound=car5: car5engine", "enginesound=car6: car6engine",
                          "enginesound=cycle1: cycle1engine", "enginesound=cycle2: cycle2engine",
                          "hornsound=car1: car1horn", "hornsound=car2: car2horn",
                          "hornsound=car3: car3horn", "hornsound=car4: car4horn",
                          "hornsound=car5: car5horn", "hornsound=car6: car6horn",
                          "hornsound=cycle1: cycle1horn", "hornsound=cycle2: cycle2horn",
                          "startsound=car1: car1ignition", "startsound=car2: car2ignition",
                          "startsound=cycle1: cycle1ignition", "startsound=cycle2: cycle2ignition",
                          "throttlesound=car1: car1throttle", "throttlesound=car2: car2throttle"));
  EXPECT_THAT(found, SizeIs(22));
}

TEST(InternalSounds, WhatIsNoNameOfTheGameHasNone) {
  for (const char* value : {"", "not set", "car1.wav", "CAR1", "Car1", " car1", "car1 ", "car",
                            "car1engine", "car3\\car1", "cycle3"}) {
    for (const std::string_view variable : VehicleVariableNames) {
      EXPECT_EQ(InternalSoundResourceName(variable, value), "") << variable << "=" << value;
    }
  }
}

TEST(InternalSounds, WhatIsNoSoundVariableHasNone) {
  for (const char* variable : {"", "EngineSound", "ENGINESOUND", "enginesound=", "engine", "horn",
                               "acceleration", "haswipers", "not set"}) {
    EXPECT_EQ(InternalSoundResourceName(variable, "car1"), "") << variable;
  }
}

// Names for the player to choose from.
TEST(InternalSounds, AreOfferedInThisOrder) {
  const auto names = [](VehicleVariable variable) {
    for (const InternalSoundKind& kind : InternalSoundKinds) {
      if (kind.variable == variable) return kind.names;
    }
    return std::span<const std::string_view>();
  };
  EXPECT_THAT(names(VehicleVariable::EngineSound),
              ElementsAre("car1", "car2", "car3", "car4", "car5", "car6", "cycle1", "cycle2"));
  EXPECT_THAT(names(VehicleVariable::ThrottleSound), ElementsAre("car1", "car2"));
  EXPECT_THAT(names(VehicleVariable::StartSound), ElementsAre("car1", "car2", "cycle1", "cycle2"));
  EXPECT_THAT(names(VehicleVariable::HornSound),
              ElementsAre("car1", "car2", "car3", "car4", "car5", "car6", "cycle1", "cycle2"));
}

}  // namespace
