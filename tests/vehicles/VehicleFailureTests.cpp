// Every call of the machine fails once while a vehicle is made: nothing is lost, nothing is left
// behind, and the user is told and never without a window.
#include "tests/FailureSweep.h"
#include "tests/Matchers.h"
#include "tests/StartedPack.h"
#include "tests/vehicles/InternalSoundResources.h"
#include "vehicles/VehicleInWork.h"

namespace {

const std::string Vehicles = StartedPack::Game + "\\vehicles";
const std::string Rocket = Vehicles + "\\rocket.vhc";
const std::string Roar = "D:\\Sounds\\roar.wav";

// A started pack with an old vehicle, in whose editor the user is.
struct EditedVehicle : StartedPack {
  explicit EditedVehicle(Simulated::Machine& itsMachine)
      : StartedPack(itsMachine, Rocket, "an old vehicle") {
    machine.files.Put(Roar, "a roar");
    PutInternalSounds(machine);
    user.ChoosesFile("rocket.vhc");
    user.AnswersYes();
    user.ChoosesMenu({"Vehicle", "New"});
  }
};

TEST(VehicleFailureSweep, ASoundIsSetAndCopiedWholeOrNeither) {
  const auto calls = ForEachCallThatFails([](auto& machine, Simulated::After after) {
    EditedVehicle vehicle(machine);
    const std::string before = TheVehicle().VehicleData;
    const auto setsEngine = [&] {
      vehicle.user.AnswersNo();
      vehicle.user.ChoosesFile(Roar);
      vehicle.user.Presses("Alt+S");
    };
    machine.FailAnyCall(after);
    setsEngine();
    EXPECT_EQ(vehicle.user.SeesWindow(), "Create Vehicle");
    if (TheVehicle().VehicleData == before) {
      EXPECT_TRUE(machine.FailureHappened() && vehicle.WasToldOfAFailure());
      EXPECT_THAT(machine.files.Names(Vehicles),
                  testing::Each(testing::AnyOf("rocket.vhc", "roar.wav")));
      vehicle.ForgetTheRest();
      setsEngine();
    }
    EXPECT_EQ(machine.files.Text(Vehicles + "\\roar.wav"), "a roar");
    EXPECT_EQ(machine.files.Text(Roar), "a roar");
    EXPECT_THAT(TheVehicle().VehicleData, testing::StartsWith("enginesound=roar.wav\r\n"));
    EXPECT_EQ(machine.files.Names(Vehicles).size(), 2u);
  });
  EXPECT_GT(calls.size(), 4u) << "hardly a call was made to fail";
}

TEST(VehicleFailureSweep, ASaveWritesTheWholeVehicleOrKeepsTheOldFile) {
  const auto calls = ForEachCallThatFails([](auto& machine, Simulated::After after) {
    EditedVehicle vehicle(machine);
    TheVehicle().VehicleData = "enginesound=car1\r\nskidrun=250";
    machine.FailAnyCall(after);
    vehicle.user.Presses("Alt+A");
    EXPECT_EQ(vehicle.user.SeesWindow(), "Create Vehicle");
    if (vehicle.WasToldOfAFailure()) {
      EXPECT_TRUE(machine.FailureHappened());
      EXPECT_EQ(machine.files.Text(Rocket), "an old vehicle");
      vehicle.user.Presses("Alt+A");
    }
    EXPECT_EQ(vehicle.user.LastBox().title, "Congratulations!");
    EXPECT_EQ(machine.files.Text(Rocket), "enginesound=car1\r\nskidrun=250\r\n");
    EXPECT_EQ(machine.files.Names(Vehicles), Names("rocket.vhc"));
  });
  EXPECT_GT(calls.size(), 1u) << "hardly a call was made to fail";
}

// Whatever fails in a test of a sound: silence, the button as before, and one box that says why.
TEST(VehicleFailureSweep, ASoundTestPlaysOrIsToldAndSilent) {
  for (const int row : {0, 2, 7}) {
    const auto calls = ForEachCallThatFails([row](auto& machine, Simulated::After after) {
      EditedVehicle vehicle(machine);
      TheVehicle().VehicleData = "enginesound=car1\r\nstartsound=car1\r\nidlefreq=9000";
      for (int i = 0; i < row; ++i) vehicle.user.Presses("Down");
      machine.FailAnyCall(after);
      vehicle.user.Presses("Alt+T");
      vehicle.user.Waits(100);
      if (vehicle.WasToldOfAFailure()) {
        EXPECT_TRUE(machine.FailureHappened());
        EXPECT_THAT(machine.sound.Playing(), testing::IsEmpty());
        EXPECT_EQ(vehicle.user.Hears(), "Test Sound, button, Alt+T");
      } else {
        EXPECT_THAT(machine.sound.Playing(), testing::SizeIs(1));
        EXPECT_EQ(vehicle.user.Hears(), "Stop, button, Alt+T");
        vehicle.user.Presses("Alt+T");
      }
      EXPECT_THAT(machine.sound.Playing(), testing::IsEmpty());
    });
    EXPECT_GT(calls.size(), 1u) << "hardly a call was made to fail";
  }
}

}  // namespace
