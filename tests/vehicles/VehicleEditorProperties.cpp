// What the editor saves, the checker passes, as far as its sounds exist.
#include "tests/RandomText.h"
#include "tests/vehicles/VehicleEditorStory.h"
#include "vehicles/VehicleChecker.h"

namespace {

class VehicleEditorProperty : public VehicleEditorStory {
 protected:
  // Sets a variable as a hurried user does, rightly or wrongly.
  void SetsAtRandom(RandomText& random) {
    const int row = static_cast<int>(random.Below(RowCount));
    if (row == Wipers) {
      random.OneIn(2) ? user.AnswersYes() : user.AnswersNo();
      return Sets(row);
    }
    if (row > Horn) return SetsNumber(row, Typeable(random.Mutated(random.OneOf(numbers))));
    // The names that every kind of sound has.
    if (random.OneIn(2)) return SetsInternalSound(row, random.OneIn(2) ? "car1" : "car2");
    SetsSoundFile(row, random.OneOf(sounds));
  }

  // Keys type no control characters into a box of one line.
  static std::string Typeable(std::string text) {
    std::erase_if(text, [](char c) { return static_cast<unsigned char>(c) < ' '; });
    return text;
  }

  const std::vector<std::string> numbers{"1",   "50",    "22050",       "0.5",  "-3", " 7 ",
                                         "1e2", "1,000", "2147483647",  "(5)",  "+3", "&H10",
                                         "3-",  "1=2",   "99999999999", "fast", ".",  "12 "};
  const std::vector<std::string> sounds{"roar.wav", "D:\\Sounds\\horn.wav", "D:\\Sounds\\a=b.wav",
                                        "ROAR.wav"};
};

TEST_F(VehicleEditorProperty, WhatIsSavedPassesTheCheck) {
  for (const char* name : {"horn.wav", "a=b.wav"}) {
    machine.files.Put(std::string("D:\\Sounds\\") + name, "sound");
  }
  machine.files.Put(Vehicles + "\\roar.wav", "a roar");
  RandomText random(11);
  int saved = 0;
  for (int i = 0; i < 60; ++i) {
    if (machine.files.Exists(Rocket)) machine.files.Delete(Rocket);
    StartsVehicle();
    for (size_t times = random.Below(20); times > 0; --times) {
      SetsAtRandom(random);
      ASSERT_EQ(user.SeesWindow(), EditorTitle);
    }
    Saves();
    user.Presses("Escape");
    if (!machine.files.Exists(Rocket)) continue;
    ++saved;
    int32_t code = 0;
    std::string message;
    ASSERT_EQ(CheckVehicleFile(Rocket, code, message), 0) << message << "\n"
                                                          << machine.files.Text(Rocket);
  }
  EXPECT_GT(saved, 40);
}

}  // namespace
