// Listening by numbers: what tests say about a sound.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace Analysis {

// Samples from -1 to 1.
using Samples = std::vector<double>;

// A WAV file, taken apart.
struct WaveFile {
  std::string fault;  // why it is not a well-formed file of PCM; empty if it is one
  int channels = 0;
  int rate = 0;
  int bits = 0;
  Samples samples;  // of a file with 16 bits and one channel
};
WaveFile Read(const std::string& bytes);

// The level of a sound in decibels below a full square wave: RMS.
double LevelOf(const Samples& samples);
// The greatest distance from 0.
double PeakOf(const Samples& samples);
// The mean, which is 0 for a sound that a loudspeaker can play without being pushed to one side.
double OffsetOf(const Samples& samples);

// A part of a sound, from a place on; a negative place counts from the end.
Samples Part(const Samples& samples, double fromSeconds, double seconds, int rate);

// The power at each frequency from 0 to half the rate, with the mean frequency of each. The sound
// is taken as a loop and heard for about a second and a half.
struct Spectrum {
  double hertzPerLine = 0;
  std::vector<double> powers;
};
Spectrum SpectrumOf(const Samples& loop, int rate);

// The centre of gravity of a spectrum, in Hz: how bright a sound is.
double CentreOf(const Spectrum& spectrum);

// The level of each third of an octave from 40 Hz to 8 kHz, in decibels beside the whole; what is
// below -60 cannot be heard beside the rest and is taken for -60.
std::vector<double> ThirdsOfOctaves(const Spectrum& spectrum);

// How far two sounds are apart: the root of the mean square of what their thirds of octaves differ
// by, in decibels. The same engine in two halves of a loop is about 1 apart from itself.
double Distance(const Samples& one, const Samples& other, int rate);

// The tones below a frequency that are no overtone of a lower one, each within 12 dB of the
// strongest; in Hz, the lowest first.
std::vector<double> TonesOf(const Spectrum& spectrum, double below);

// Looks at the joint of a sound that another follows (or the sound itself).
struct Joint {
  double step;        // from the last sample to the first
  double usualStep;   // the median of the steps in the second sound
  double bend;        // how much the step there differs from those beside it, at most
  double strongBend;  // what 99 of 100 samples of the second sound stay below
};
Joint JointOf(const Samples& first, const Samples& second);

}  // namespace Analysis
