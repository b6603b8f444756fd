#include "vehicles/VehicleLines.h"

#include <gtest/gtest.h>

namespace {

constexpr auto Horn = VehicleVariable::HornSound;
constexpr auto Steering = VehicleVariable::Steering;

TEST(VehicleLines, ANewVehicleHasTheFourteenVariablesInTheirOrderAndNoValue) {
  EXPECT_EQ(VehicleLines::OfNewVehicle(),
            "enginesound=\r\nthrottlesound=\r\nstartsound=\r\nhornsound=\r\nacceleration=\r\n"
            "deceleration=\r\nskidrun=\r\nidlefreq=\r\ntopfreq=\r\nshiftfreq=\r\nnumberofgears=\r\n"
            "steering=\r\nsteeringfactor=\r\nhaswipers=");
}

TEST(VehicleLines, AValueReplacesEveryLineOfItsVariable) {
  EXPECT_EQ(VehicleLines::WithValue("steering=1\r\nhornsound=\r\nsteering=2", Steering, "7"),
            "steering=7\r\nhornsound=\r\nsteering=7");
}

TEST(VehicleLines, AVariableWhoseNameBeginsAnothersIsNotTakenForIt) {
  EXPECT_EQ(VehicleLines::WithValue("steeringfactor=\r\nsteering=", Steering, "7"),
            "steeringfactor=\r\nsteering=7");
  EXPECT_EQ(VehicleLines::ValueOf("steeringfactor=9\r\nsteering=7", Steering), "7");
}

TEST(VehicleLines, AVariableWithoutALineHasNoValueAndGetsNone) {
  EXPECT_EQ(VehicleLines::ValueOf("steering=7", Horn), "");
  EXPECT_EQ(VehicleLines::WithValue("steering=7", Horn, "car1"), "steering=7");
}

TEST(VehicleLines, TheFileHoldsTheVariablesThatHaveAValue) {
  EXPECT_EQ(VehicleLines::ForFile(VehicleLines::OfNewVehicle()), "");
  EXPECT_EQ(VehicleLines::ForFile("enginesound=car1\r\n\r\nhornsound=\r\nskidrun=250\r\n"),
            "enginesound=car1\r\nskidrun=250\r\n");
}

}  // namespace
