// Hearing a vehicle's sounds before the game does: the sound itself, the ignition with the engine
// behind it, or the engine at one of its frequencies.
#pragma once

#include <optional>
#include <string>

#include "base/LangText.h"
#include "platform/Sound.h"
#include "vehicles/VehicleVariables.h"

class SoundTest {
 public:
  // Why a variable cannot be heard, as the user is told.
  struct Refusal {
    std::string text;
    LangText title;
  };

  // Plays what the variable of the vehicle in work sounds like, again and again until Stop. An
  // ignition is played once, and then the engine. A frequency is heard as the engine at that rate.
  // Returns why not, if it cannot be heard. Fails with RuntimeError if a sound file cannot be read
  // or is damaged, or the sound device does not play. Nothing plays then.
  //
  // The engine behind an ignition or a frequency is found among the game's own sounds only: with an
  // engine from a file these tests are refused for want of its name. The game's players know them
  // so, and the pack's own checker and packager count on nothing else.
  std::optional<Refusal> Start(VehicleVariable variable);

  // Goes on from the ignition to the engine when that is due, and notices a device that has gone.
  // To be called some twenty times a second. Returns false if nothing plays any more. Fails as
  // Start does; nothing plays then.
  bool Continue();

  // Silence, at once.
  void Stop();

  bool IsPlaying() const { return sound_.has_value(); }

 private:
  std::optional<Refusal> StartLooped(VehicleVariable variable);
  std::optional<Refusal> StartIgnition();
  std::optional<Refusal> StartFrequency(VehicleVariable variable);

  std::optional<Platform::SoundBuffer> sound_;   // what is heard now
  std::optional<Platform::SoundBuffer> engine_;  // waits for the end of the ignition
};
