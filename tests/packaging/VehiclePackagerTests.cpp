// The vehicle packager.
#include "archive/Extraction.h"
#include "tests/archive/ZipBytes.h"
#include "tests/packaging/PackagingStory.h"
#include "vehicles/VehicleChecker.h"

namespace {

using Platform::Icon;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

class VehiclePackagerStory : public PackagingStory {
 protected:
  const std::string success =
      "Your car has successfully been packaged to the zip file " + Rocket + ".zip";

  void PutVehicle(const std::string& lines) {
    machine.files.Put(Vehicles + "\\Rocket.vhc", lines);
    machine.files.Put(Vehicles + "\\rocket.wav", "a rocket");
  }
  void ExpectSuccess() {
    EXPECT_THAT(user.LastBox(), Shows(Icon::Information, success, "Congratulations!"));
    EXPECT_EQ(user.SeesWindow(), PackTitle);
  }
  std::vector<std::string> NamesInArchive() {
    std::vector<std::string> names;
    for (const File& file : Packaged::In(Rocket + ".zip")) names.push_back(file.name);
    return names;
  }
  // What a sound is told with, if its file is missing; empty if the vehicle is packaged.
  std::string BoxAbout(const std::string& lines) {
    PutVehicle(lines);
    PackageVehicle();
    EXPECT_EQ(user.SeesWindow(), PackTitle);
    if (user.LastBox().text == success) {
      machine.files.Delete(Vehicles + "\\rocket.zip");
      return "";
    }
    EXPECT_EQ(user.LastBox().icon, Icon::Critical);
    EXPECT_EQ(user.LastBox().title, "Data Error");
    EXPECT_EQ(machine.files.Text(Vehicles + "\\Rocket.vhc"), lines);
    EXPECT_FALSE(machine.files.Exists(Rocket + ".zip"));
    return user.LastBox().text;
  }
};

TEST_F(VehiclePackagerStory, AllOfAVehicleIsPackagedInOrder) {
  const std::string lines =
      "hornsound=horn.wav\r\nskidrun=1\r\nstartsound=Start.WAV\r\nthrottlesound=throttle.wav\r\n"
      "enginesound=engine.wav\r\n";
  PutVehicle(lines);
  for (const char* name : {"horn.wav", "Start.WAV", "throttle.wav", "engine.wav"}) {
    machine.files.Put(Vehicles + "\\" + name, std::string("the ") + name);
  }
  machine.files.Put(Vehicles + "\\other.wav", "of another vehicle");
  PackageVehicle();
  ExpectSuccess();
  EXPECT_THAT(user.Boxes(), SizeIs(1));
  EXPECT_EQ(user.LastFileDialog().initialFolder, Vehicles);
  EXPECT_THAT(
      Packaged::In(Rocket + ".zip"),
      ElementsAre(File{"rocket.wav", "a rocket"}, File{"rocket.vhc", lines},
                  File{"engine.wav", "the engine.wav"}, File{"throttle.wav", "the throttle.wav"},
                  File{"Start.WAV", "the Start.WAV"}, File{"horn.wav", "the horn.wav"}));
  EXPECT_THAT(machine.files.Names(Vehicles), ElementsAre("other.wav", "rocket.zip"));
}

TEST_F(VehiclePackagerStory, InternalSoundsAreLeftOut) {
  PutVehicle("enginesound=car6\r\nthrottlesound=car2\r\nstartsound=cycle2\r\nhornsound=car5\r\n");
  machine.files.Put(Vehicles + "\\car6", "a file of that name is none of the vehicle's");
  PackageVehicle();
  ExpectSuccess();
  EXPECT_THAT(NamesInArchive(), ElementsAre("rocket.wav", "rocket.vhc"));
  EXPECT_THAT(machine.files.Names(Vehicles), ElementsAre("car6", "rocket.zip"));
}

TEST_F(VehiclePackagerStory, EachSoundHasInternalNamesOfItsOwn) {
  const struct {
    const char* variable;
    std::vector<std::string> internal;
    const char* text;
  } sounds[] = {
      {"enginesound",
       {"car1", "car2", "car3", "car4", "car5", "car6", "cycle1", "cycle2"},
       "Engine file doesn't exist."},
      {"throttlesound", {"car1", "car2"}, "Throttle file doesn't exist."},
      {"startsound", {"car1", "car2", "cycle1", "cycle2"}, "Ignition file doesn't exist."},
      {"hornsound",
       {"car1", "car2", "car3", "car4", "car5", "car6", "cycle1", "cycle2"},
       "Horn file doesn't exist."}};
  for (const auto& sound : sounds) {
    for (const std::string name : {"car1", "car2", "car3", "car4", "car5", "car6", "car7", "cycle1",
                                   "cycle2", "cycle3", "Car1", " car1", "car1 "}) {
      const bool isInternal = testing::Value(sound.internal, testing::Contains(name));
      EXPECT_EQ(BoxAbout(std::string(sound.variable) + "=" + name + "\r\n"),
                isInternal ? "" : sound.text)
          << name;
    }
  }
}

TEST_F(VehiclePackagerStory, AThrottleOfCar3IsAFile) {
  machine.files.Put(Vehicles + "\\car3", "mine");
  EXPECT_EQ(BoxAbout("throttlesound=car3\r\n"), "");
  EXPECT_FALSE(machine.files.Exists(Vehicles + "\\car3"));
}

TEST_F(VehiclePackagerStory, TheFirstMissingSoundIsToldAndNothingIsTouched) {
  machine.files.Put(Vehicles + "\\engine.wav", "an engine");
  EXPECT_EQ(BoxAbout("hornsound=no\r\nstartsound=no\r\nthrottlesound=car1\r\n"
                     "enginesound=engine.wav\r\n"),
            "Ignition file doesn't exist.");
  EXPECT_THAT(machine.files.Names(Vehicles), ElementsAre("engine.wav", "Rocket.vhc", "rocket.wav"));
}

TEST_F(VehiclePackagerStory, LinesAreReadAsTheyStand) {
  // Empty values, other letter case, blanks and the lines of others say nothing of sounds.
  EXPECT_EQ(BoxAbout("enginesound=\r\nEngineSound=a\r\n enginesound=b\r\nenginesound =c\r\n"
                     "xenginesound=d\r\nenginesound\r\n"),
            "");
  // The last line of a variable counts.
  EXPECT_EQ(BoxAbout("enginesound=no.wav\r\nenginesound=car1\r\n"), "");
  EXPECT_EQ(BoxAbout("enginesound=car1\r\nenginesound=no.wav"), "Engine file doesn't exist.");
  EXPECT_EQ(BoxAbout("hornsound=" + std::string(100'000, 'x')), "Horn file doesn't exist.");
  EXPECT_EQ(BoxAbout(""), "");
}

TEST_F(VehiclePackagerStory, ASoundThatIsNamedTwiceIsPackedAndDeletedOnce) {
  PutVehicle(
      "enginesound=Sound.wav\r\nhornsound=sound.wav\r\nthrottlesound=rocket.wav\r\n"
      "startsound=Rocket.vhc\r\n");
  machine.files.Put(Vehicles + "\\sound.wav", "a sound");
  PackageVehicle();
  ExpectSuccess();
  EXPECT_THAT(NamesInArchive(), ElementsAre("rocket.wav", "rocket.vhc", "Sound.wav"));
  EXPECT_THAT(machine.files.Names(Vehicles), ElementsAre("rocket.zip"));
}

TEST_F(VehiclePackagerStory, SoundsOutsideTheVehiclesFolderAreNeitherPackedNorDeleted) {
  const std::string horn = Game + "\\sounds\\horn.wav";
  for (const char* value : {"..\\sounds\\horn.wav", "a\\..\\..\\sounds\\horn.wav"}) {
    const std::string path = Vehicles + "\\" + value;
    machine.files.Put(path, "a horn");
    PutVehicle(std::string("hornsound=") + value + "\r\n");
    PackageVehicle();
    EXPECT_THAT(user.LastBox(),
                Shows(Icon::Critical, HasSubstr("outside of its own folder"), "Error"))
        << value;
    EXPECT_EQ(machine.files.Text(path), "a horn");
    EXPECT_TRUE(machine.files.Exists(Rocket + ".vhc"));
    EXPECT_FALSE(machine.files.Exists(Rocket + ".zip"));
  }
}

TEST_F(VehiclePackagerStory, SoundsInFoldersBelowArePackedUnderTheirPlainNames) {
  PutVehicle("enginesound=mine\\engine.wav\r\nhornsound=my\\own\\horn.wav\r\n");
  machine.files.Put(Vehicles + "\\mine\\engine.wav", "an engine");
  machine.files.Put(Vehicles + "\\my\\own\\horn.wav", "a horn");
  PackageVehicle();
  ExpectSuccess();
  EXPECT_THAT(NamesInArchive(), ElementsAre("rocket.wav", "rocket.vhc", "engine.wav", "horn.wav"));
  EXPECT_THAT(user.Boxes(), SizeIs(1));
}

TEST_F(VehiclePackagerStory, TwoSoundsOfOneNameAreToldAndKept) {
  PutVehicle("enginesound=a\\sound.wav\r\nhornsound=sound.wav\r\n");
  machine.files.Put(Vehicles + "\\a\\sound.wav", "an engine");
  machine.files.Put(Vehicles + "\\sound.wav", "a horn");
  PackageVehicle();
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, HasSubstr("of the same name"), "Error"));
  EXPECT_THAT(machine.files.Names(Vehicles),
              ElementsAre("a", "Rocket.vhc", "rocket.wav", "sound.wav"));
}

TEST_F(VehiclePackagerStory, TheArchiveItselfIsNoSound) {
  const std::string archive = ZipBytes::Of({.name = "a", .contents = "b"});
  machine.files.Put(Vehicles + "\\rocket.zip", archive);
  for (const char* name : {"rocket.zip", "ROCKET.ZIP", "..\\vehicles\\rocket.zip"}) {
    PutVehicle(std::string("hornsound=") + name);
    PackageVehicle();
    EXPECT_THAT(user.LastBox().icon, Icon::Critical) << name;
    EXPECT_EQ(machine.files.Text(Vehicles + "\\rocket.zip"), archive);
    EXPECT_TRUE(machine.files.Exists(Rocket + ".vhc"));
  }
}

TEST_F(VehiclePackagerStory, WithoutAVehicleTheUserIsTold) {
  user.CancelsFileDialog();
  user.ChoosesMenu({"Vehicle", "Package"});
  EXPECT_THAT(user.LastBox(),
              Shows(Icon::Information, "Car Packager aborted. No file selected.", "Aborted"));
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

TEST_F(VehiclePackagerStory, AVehicleThatIsNotThereIsToldBeforeAnythingIsAsked) {
  PackageVehicle("nowhere.vhc");
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, HasSubstr("nowhere.vhc"), "Error"));
  EXPECT_EQ(user.SeesWindow(), PackTitle);
}

TEST_F(VehiclePackagerStory, WithoutADescriptionTheUserIsAskedWhatToDo) {
  PackageVehicle();
  EXPECT_EQ(user.SeesWindow(), VehicleOptions);
  EXPECT_EQ(user.Hears(), "Please select an option:, list, Open existing .wav file, 1 of 2");
  for (const char* leave : {"Escape", "Alt+F4"}) {
    if (user.SeesWindow() == PackTitle) PackageVehicle();
    user.Presses(leave);
    EXPECT_THAT(user.LastBox(), Shows(Icon::Information, Aborted, "Aborted"));
    EXPECT_EQ(user.SeesWindow(), PackTitle);
  }
  EXPECT_THAT(machine.files.Names(Vehicles), ElementsAre("Rocket.vhc"));
}

TEST_F(VehiclePackagerStory, ASoundFromElsewhereBecomesTheDescription) {
  machine.files.Put("C:\\Sounds\\Spoken.wav", "spoken");
  PackageVehicle();
  user.ChoosesFile("C:\\Sounds\\Spoken.wav");
  user.Presses("Enter");
  EXPECT_EQ(user.LastFileDialog().title, "Open .wav sound");
  EXPECT_EQ(user.LastFileDialog().initialFolder, "c:\\games\\skidrun2\\vehicles");
  ExpectSuccess();
  EXPECT_THAT(
      Packaged::In(Rocket + ".zip"),
      ElementsAre(File{"rocket.wav", "spoken"}, File{"rocket.vhc", "enginesound=car1\r\n"}));
  EXPECT_EQ(machine.files.Text("C:\\Sounds\\Spoken.wav"), "spoken");
}

TEST_F(VehiclePackagerStory, ADescriptionThatCameMeanwhileIsKept) {
  machine.files.Put("C:\\Sounds\\Spoken.wav", "spoken");
  PackageVehicle();
  machine.files.Put(Vehicles + "\\rocket.wav", "another program's");
  user.ChoosesFile("C:\\Sounds\\Spoken.wav");
  user.Presses("Enter");
  ExpectSuccess();
  EXPECT_EQ(Packaged::In(Rocket + ".zip").at(0).bytes, "another program's");
}

TEST_F(VehiclePackagerStory, WithoutASoundTheUserIsTold) {
  PackageVehicle();
  user.CancelsFileDialog();
  user.Presses("Enter");
  EXPECT_THAT(user.LastBox(),
              Shows(Icon::Critical, "Car packager aborted. No wave file.", "Aborted"));
  EXPECT_EQ(user.SeesWindow(), PackTitle);
  EXPECT_THAT(machine.files.Names(Vehicles), ElementsAre("Rocket.vhc"));
}

TEST_F(VehiclePackagerStory, ADamagedArchiveIsToldAndKeptByteForByte) {
  PutVehicle("enginesound=car1\r\n");
  machine.files.Put(Vehicles + "\\rocket.zip", "damaged");
  PackageVehicle();
  EXPECT_THAT(user.LastBox(), Shows(Icon::Critical, HasSubstr("rocket.zip"), "Error"));
  EXPECT_EQ(machine.files.Text(Vehicles + "\\rocket.zip"), "damaged");
  EXPECT_THAT(machine.files.Names(Vehicles), ElementsAre("Rocket.vhc", "rocket.wav", "rocket.zip"));
}

TEST_F(VehiclePackagerStory, WhoUnpacksThePackageHasTheVehicleWithoutAFault) {
  PutVehicle(
      "enginesound=Engine.wav\r\nthrottlesound=car2\r\nhornsound=horn.wav\r\n"
      "skidrun=120\r\n");
  machine.files.Put(Vehicles + "\\engine.wav", "an engine");
  machine.files.Put(Vehicles + "\\Horn.wav", "a horn");
  PackageVehicle();
  ExpectSuccess();
  machine.files.PutFolder("C:\\Friend");
  Archive::Extract(Rocket + ".zip", "C:\\Friend\\vehicles", "");
  int32_t code = 0;
  std::string message;
  EXPECT_EQ(CheckVehicleFile("C:\\Friend\\vehicles\\rocket.vhc", code, message), 0) << message;
  EXPECT_EQ(machine.files.Text("C:\\Friend\\vehicles\\rocket.wav"), "a rocket");
}

TEST_F(VehiclePackagerStory, OneAfterTheOtherIsPackaged) {
  for (const char* name : {"rocket", "tractor"}) {
    machine.files.Put(Vehicles + "\\" + name + ".vhc", "skidrun=1");
    machine.files.Put(Vehicles + "\\" + name + ".wav", "spoken");
    PackageVehicle(name);
  }
  EXPECT_THAT(machine.files.Names(Vehicles), ElementsAre("rocket.zip", "tractor.zip"));
}

}  // namespace
