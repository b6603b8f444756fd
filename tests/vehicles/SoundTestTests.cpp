// A vehicle's sounds are heard in the editor, before the game plays them.
#include "tests/WaveBytes.h"
#include "tests/vehicles/InternalSoundResources.h"
#include "tests/vehicles/VehicleEditorStory.h"

namespace {

using Platform::Icon;
using testing::AllOf;
using testing::ElementsAre;
using testing::Field;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

auto PlaysOver(const std::string& samples, int rate = 22'050) {
  return AllOf(Field("samples", &Simulated::PlayedSound::samples, samples),
               Field("rate", &Simulated::PlayedSound::rate, rate),
               Field("isLooping", &Simulated::PlayedSound::isLooping, true));
}

auto PlaysOnce(const std::string& samples) {
  return AllOf(Field("samples", &Simulated::PlayedSound::samples, samples),
               Field("isLooping", &Simulated::PlayedSound::isLooping, false));
}

class SoundTestStory : public VehicleEditorStory {
 protected:
  SoundTestStory() {
    PutInternalSounds(machine);
    StartsVehicle();
  }

  void Tests(int row) {
    GoesTo(row);
    user.Presses("Alt+T");
  }

  // The test was refused with this box alone: silence, and the button as it was.
  template <class TextMatcher>
  void ExpectRefusal(TextMatcher text, const std::string& title) {
    EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, text, title));
    ExpectSilence();
  }

  void ExpectSilence() {
    EXPECT_THAT(machine.sound.Playing(), IsEmpty());
    EXPECT_EQ(user.Hears(), "Test Sound, button, Alt+T");
    EXPECT_EQ(user.SeesWindow(), EditorTitle);
  }

  void PutSound(const std::string& name, const std::string& samples) {
    machine.files.Put(Vehicles + "\\" + name, WaveBytes::File(WaveBytes::Format{}, samples));
  }

  static std::string Engine1() { return SamplesOfResource("car1engine"); }
};

// --- One sound ---

TEST_F(SoundTestStory, ASoundOfTheGameIsPlayedAgainAndAgain) {
  SetsInternalSound(Horn, "cycle2");
  Tests(Horn);
  EXPECT_THAT(machine.sound.Playing(), ElementsAre(PlaysOver(SamplesOfResource("cycle2horn"))));
  EXPECT_EQ(user.Hears(), "Stop, button, Alt+T");
  user.Waits(60'000);
  EXPECT_THAT(machine.sound.Playing(), SizeIs(1));
}

TEST_F(SoundTestStory, EachKindOfSoundIsItsOwn) {
  SetsInternalSound(Engine, "car5");
  SetsInternalSound(Throttle, "car2");
  for (const auto& [row, resource] :
       {std::pair(Engine, "car5engine"), {Throttle, "car2throttle"}}) {
    Tests(row);
    EXPECT_THAT(machine.sound.Playing(), ElementsAre(PlaysOver(SamplesOfResource(resource))));
    user.Presses("Alt+T");
  }
}

TEST_F(SoundTestStory, AFileBesideTheVehicleIsPlayed) {
  PutSound("roar.wav", "roaring!");
  SetsSoundFile(Engine, "roar.wav");
  Tests(Engine);
  EXPECT_THAT(machine.sound.Playing(), ElementsAre(PlaysOver("roaring!")));
}

TEST_F(SoundTestStory, TheButtonStopsWhatPlaysWhateverRowIsSelected) {
  SetsInternalSound(Engine, "car1");
  Tests(Engine);
  GoesTo(Acceleration);
  user.Presses("Alt+T");
  EXPECT_THAT(user.Boxes(), SizeIs(1)) << "only the question of the sound before";
  ExpectSilence();
  GoesTo(Engine);
  user.Presses("Alt+T");
  EXPECT_THAT(machine.sound.Playing(), SizeIs(1));
}

TEST_F(SoundTestStory, AMissingSoundIsToldByTheNameOfItsVariable) {
  SetsSoundFile(Engine, "roar.wav");  // beside the vehicle, where nothing is copied
  Tests(Engine);
  ExpectRefusal("Cannot test enginesound. File doesn't exist.", "Test error");
}

TEST_F(SoundTestStory, ASoundThatIsNotSetIsAMissingFile) {
  for (const auto& [row, name] :
       {std::pair(Engine, "enginesound"), {Throttle, "throttlesound"}, {Horn, "hornsound"}}) {
    Tests(row);
    ExpectRefusal(std::string("Cannot test ") + name + ". File doesn't exist.", "Test error");
  }
}

TEST_F(SoundTestStory, ADamagedSoundIsToldWithItsReason) {
  machine.files.Put(Vehicles + "\\roar.wav", "no sound at all");
  SetsSoundFile(Horn, "roar.wav");
  Tests(Horn);
  ExpectRefusal(AllOf(HasSubstr("This is not a wave file."), HasSubstr("roar.wav")), "Error");
  PutSound("roar.wav", "");
  Tests(Horn);
  ExpectRefusal(HasSubstr("The wave file holds no sound."), "Error");
}

TEST_F(SoundTestStory, WhatIsNoSoundCannotBeTested) {
  for (const int row :
       {Acceleration, Deceleration, TopSpeed, Gears, Steering, SteeringFactor, Wipers}) {
    Tests(row);
    ExpectRefusal("Cannot test. The variable you have selected is not a testable value.",
                  "Input error");
  }
}

// --- The ignition ---

TEST_F(SoundTestStory, TheIgnitionIsPlayedOnceAndThenTheEngine) {
  SetsInternalSound(Engine, "car1");
  SetsInternalSound(Ignition, "cycle1");
  Tests(Ignition);
  EXPECT_THAT(machine.sound.Playing(), ElementsAre(PlaysOnce(SamplesOfResource("cycle1ignition"))));
  EXPECT_EQ(user.Hears(), "Stop, button, Alt+T");
  machine.sound.EndSounds();
  user.Waits(100);
  EXPECT_THAT(machine.sound.Playing(), ElementsAre(PlaysOver(Engine1())));
  EXPECT_EQ(user.Hears(), "Stop, button, Alt+T");
  user.Presses("Alt+T");
  ExpectSilence();
}

TEST_F(SoundTestStory, AnIgnitionFromAFileIsFollowedByTheEngineToo) {
  PutSound("start.wav", "starting");
  SetsInternalSound(Engine, "car1");
  SetsSoundFile(Ignition, "start.wav");
  Tests(Ignition);
  EXPECT_THAT(machine.sound.Playing(), ElementsAre(PlaysOnce("starting")));
  machine.sound.EndSounds();
  user.Waits(100);
  EXPECT_THAT(machine.sound.Playing(), ElementsAre(PlaysOver(Engine1())));
}

TEST_F(SoundTestStory, StoppingDuringTheIgnitionEndsTheTest) {
  SetsInternalSound(Engine, "car1");
  SetsInternalSound(Ignition, "car1");
  Tests(Ignition);
  user.Presses("Alt+T");
  ExpectSilence();
  user.Waits(5'000);
  ExpectSilence();
}

TEST_F(SoundTestStory, ClosingTheWindowDuringTheIgnitionEndsTheTest) {
  SetsInternalSound(Engine, "car1");
  SetsInternalSound(Ignition, "car1");
  Tests(Ignition);
  user.Presses("Alt+F4");
  EXPECT_EQ(user.SeesWindow(), PackTitle);
  EXPECT_THAT(machine.sound.Playing(), IsEmpty());
  user.Waits(5'000);
  EXPECT_THAT(machine.sound.Playing(), IsEmpty());
}

TEST_F(SoundTestStory, AnIgnitionWithoutAnEngineOfTheGameIsRefused) {
  SetsInternalSound(Ignition, "car1");
  Tests(Ignition);
  ExpectRefusal("Cannot test ignition. No filename entered.", "Internal error");
  PutSound("roar.wav", "roaring!");
  SetsSoundFile(Engine, "roar.wav");
  Tests(Ignition);
  ExpectRefusal("Cannot test ignition. No filename entered.", "Internal error");
}

TEST_F(SoundTestStory, AnIgnitionThatIsMissingIsTold) {
  SetsInternalSound(Engine, "car1");
  Tests(Ignition);
  ExpectRefusal("Cannot test startsound. File doesn't exist.", "Test error");
}

// --- Frequencies ---

TEST_F(SoundTestStory, AFrequencyIsHeardAsTheEngineAtThatRate) {
  SetsInternalSound(Engine, "car3");
  const std::pair<int, int> rates[] = {
      {IdleFrequency, 9'000}, {TopFrequency, 44'100}, {ShiftFrequency, 15'000}};
  for (const auto& [row, rate] : rates) {
    SetsNumber(row, std::to_string(rate));
    Tests(row);
    EXPECT_THAT(machine.sound.Playing(),
                ElementsAre(PlaysOver(SamplesOfResource("car3engine"), rate)));
    user.Presses("Alt+T");
    ExpectSilence();
  }
}

TEST_F(SoundTestStory, AFrequencyIsRoundedAsEveryNumberOfAVehicle) {
  SetsInternalSound(Engine, "car3");
  SetsNumber(TopFrequency, " 20000.5 ");
  Tests(TopFrequency);
  EXPECT_THAT(machine.sound.Playing(),
              ElementsAre(PlaysOver(SamplesOfResource("car3engine"), 20'000)));
}

TEST_F(SoundTestStory, AFrequencyWithoutAnEngineOfTheGameIsRefused) {
  SetsNumber(TopFrequency, "20000");
  Tests(TopFrequency);
  ExpectRefusal("No filename specified. Cannot test frequencies.", "Internal error");
  PutSound("engine.wav", "roaring!");
  SetsSoundFile(Engine, "engine.wav");
  Tests(TopFrequency);
  ExpectRefusal("No filename specified. Cannot test frequencies.", "Internal error");
}

TEST_F(SoundTestStory, AFrequencyThatCannotBePlayedIsRefused) {
  SetsInternalSound(Engine, "car1");
  Tests(IdleFrequency);  // not set
  ExpectRefusal(HasSubstr("It must be between 100 and 200000."), "Error");
  for (const char* rate : {"99", "200001", "-5", "0"}) {
    SetsNumber(IdleFrequency, rate);
    Tests(IdleFrequency);
    ExpectRefusal(HasSubstr("It must be between 100 and 200000."), "Error");
  }
  for (const int rate : {100, 200'000}) {
    SetsNumber(IdleFrequency, std::to_string(rate));
    Tests(IdleFrequency);
    EXPECT_THAT(machine.sound.Playing(), ElementsAre(PlaysOver(Engine1(), rate)));
    user.Presses("Alt+T");
  }
}

// --- What else the user does meanwhile ---

TEST_F(SoundTestStory, SettingAValueStopsTheTestBeforeItAsks) {
  SetsInternalSound(Engine, "car1");
  Tests(Engine);
  user.WhenWindowOpens("Top Speed", [this] {
    EXPECT_THAT(machine.sound.Playing(), IsEmpty());
    user.Types("250");
    user.Presses("Enter");
  });
  Sets(TopSpeed);
  GoesTo(TopSpeed);
  user.Presses("Tab");
  user.Presses("Tab");
  user.Presses("Tab");
  EXPECT_EQ(user.Hears(), "Test Sound, button, Alt+T");
}

TEST_F(SoundTestStory, LeavingTheEditorStopsTheTest) {
  SetsInternalSound(Engine, "car1");
  Tests(Engine);
  user.Presses("Escape");
  EXPECT_THAT(machine.sound.Playing(), IsEmpty());
}

TEST_F(SoundTestStory, TheEditorOpensSilentAfterATest) {
  SetsInternalSound(Engine, "car1");
  Tests(Engine);
  user.Presses("Escape");
  StartsVehicle();
  SetsInternalSound(Horn, "car1");
  Tests(Horn);
  EXPECT_THAT(machine.sound.Playing(), ElementsAre(PlaysOver(SamplesOfResource("car1horn"))));
}

// --- The sound device ---

TEST_F(SoundTestStory, ADeviceThatGoesAwayEndsTheTest) {
  SetsInternalSound(Engine, "car1");
  Tests(Engine);
  machine.sound.Unplug();
  user.Waits(1'000);
  ExpectSilence();
}

TEST_F(SoundTestStory, ADeviceThatIsReplacedGoesOnWithTheSound) {
  SetsInternalSound(Engine, "car1");
  Tests(Engine);
  machine.sound.Unplug();
  machine.sound.PlugIn();
  user.Waits(1'000);
  EXPECT_THAT(machine.sound.Playing(), ElementsAre(PlaysOver(Engine1())));
  EXPECT_EQ(user.Hears(), "Stop, button, Alt+T");
}

TEST_F(SoundTestStory, WithoutADeviceTheEditorWorksAndTheTestSaysWhy) {
  machine.sound.Unplug();
  SetsInternalSound(Engine, "car1");
  Tests(Engine);
  ExpectRefusal(
      "Sound is not available. There is no sound device, or it does not answer.\r\n"
      "Opening the sound device: system error 0x88780078",
      "Error");
  SetsNumber(TopSpeed, "250");
  Saves();
  EXPECT_EQ(machine.files.Text(Rocket), "enginesound=car1\r\nskidrun=250\r\n");
}

TEST_F(SoundTestStory, AFrequencyThatTheDeviceDoesNotKnowIsToldWithTheSystemsCode) {
  SetsInternalSound(Engine, "car1");
  SetsNumber(TopFrequency, "150000");
  machine.sound.SetHighestRate(100'000);
  Tests(TopFrequency);
  ExpectRefusal(
      "A sound cannot be played at this frequency. It must be between 100 and 200000.\r\n"
      "Setting the frequency of a sound: system error 0x80070057",
      "Error");
}

TEST_F(SoundTestStory, ADeviceThatGoesAwayDuringTheIgnitionEndsTheTest) {
  SetsInternalSound(Engine, "car1");
  SetsInternalSound(Ignition, "car1");
  Tests(Ignition);
  machine.sound.Unplug();
  user.Waits(1'000);
  EXPECT_THAT(machine.sound.Playing(), IsEmpty());
  EXPECT_EQ(user.Hears(), "Test Sound, button, Alt+T");
}

}  // namespace
