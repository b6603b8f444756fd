// A vehicle, as far as it is heard. Angles are those of the crankshaft, in degrees; an engine of
// four strokes turns twice, 720 degrees, in a cycle, in which each cylinder fires once.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "Filters.h"

// When a cylinder fires, into which of the exhaust pipes, how long its pulse is on the way to where
// the pipes meet, and how strong it is. What differs between cylinders gives an engine its rhythm.
struct Cylinder {
  double angle;
  size_t pipe = 0;
  double seconds = 0;
  double strength = 1;
};

// A note that turns with the crankshaft: a gear, a chain, a fan. It sounds a whole number of times
// in a cycle.
struct Whine {
  int perCycle;
  double level;
};

// How the engine runs. Levels are in decibels beside the exhaust's.
struct Running {
  double rpm;         // turns of the crankshaft in a minute
  int cycles;         // in the loop
  double pulse;       // seconds until the pressure of a firing is at its height in the exhaust
  double push;        // what the piston pushes out after that, beside it
  double turbulence;  // the noise in what streams out
  double uneven;      // how much one firing differs from the next, 0 to 1
  double wander;      // how much the speed changes over the loop, 0 to 1
  double drive;       // how hard all of it presses on the ear; a loud engine rasps
  double intake;
  double valves;
  double knock;
  double whine;
  double level;  // of the whole, in decibels below the loudest that a file can hold (RMS)
};

// How an engine is started. Seconds are counted from the beginning of the sound; the crank's speed
// is a share of that of the idling engine.
struct Starting {
  double catches;  // the first cylinder fires
  double flares;   // the engine is at its fastest
  double settles;  // it idles from here on
  double ends;
  double crank;   // the speed at which the starter turns it
  double ripple;  // how much compression slows that down, 0 to 1
  double flare;   // the speed at its fastest
  int teeth;      // of the ring gear: its note is that many times the turns of the crankshaft
  double motor;   // the note of the electric motor, above that of the gear
  double level;   // decibels beside the idling engine
};

// Several tones that sound together for a second. Each is a whole number of Hz, so that the second
// can be repeated without a joint.
struct Horn {
  std::vector<int> tones;
  double fall;                     // how much quieter each overtone is than the one below it
  std::vector<Resonance> trumpet;  // what the overtones are lifted by
  double breath;                   // decibels beside the tones
  double level;                    // as in Running
};

struct Vehicle {
  std::string_view name;
  std::vector<Cylinder> cylinders;
  std::vector<PipeShape> pipes;
  double muffler;  // Hz; what is above is lost in it
  double mouth;    // Hz; what is below does not leave the end of the pipe well
  std::vector<Resonance> exhaust;
  std::vector<Resonance> intake;
  std::vector<Resonance> valves;
  std::vector<Resonance> block;  // rings when the fuel explodes
  std::vector<Whine> whines;
  Running idle;
  std::optional<Running> load;
  std::optional<Starting> starting;
  Horn horn;
};

// All vehicles of the game. Fails with std::out_of_range if there is none of that name.
const Vehicle& VehicleOf(std::string_view name);
