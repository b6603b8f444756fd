// Arithmetic that gives the same bits on every machine. The functions of the C library differ in
// the last place from one library to the next, which is enough to change a sample; these are made
// of additions, multiplications and divisions in a fixed order, and those are exact everywhere as
// long as the compiler does not fuse them (-ffp-contract=off).
#pragma once

#include <cstddef>
#include <cstdint>

namespace Exact {

// The whole number at or below a value of less than 2^62.
int64_t Floor(double value);
// What a value is above the whole number below it: 0 <= Fraction < 1, for negative values too.
double Fraction(double value);

// The sine of a number of whole turns: Sine(0.25) is 1.
double Sine(double turns);
double Cosine(double turns);

// e to the power of a value of at most 8. Below -40 it is 0.
double Exp(double value);
// A level in decibels as a factor: Decibels(-20) is 0.1.
double Decibels(double level);

// The square root; it needs no care, since every machine rounds it correctly.
double Root(double value);

// From 0 to 1, slowly at both ends, while a value goes from one place to another.
double Smooth(double from, double to, double value);

// Noise from -1 to 1 that is a function of its place: the same wherever and however often it is
// asked for. Different seeds have nothing in common.
double Noise(uint32_t seed, uint32_t place);

}  // namespace Exact
