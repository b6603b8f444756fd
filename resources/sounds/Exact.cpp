#include "Exact.h"

#include <cmath>

namespace Exact {

int64_t Floor(double value) {
  const auto whole = static_cast<int64_t>(value);
  return static_cast<double>(whole) > value ? whole - 1 : whole;
}

double Fraction(double value) {
  return value - static_cast<double>(Floor(value));
}

double Sine(double turns) {
  // To the quarter turn on each side of 0, where the series is short.
  double x = Fraction(turns + 0.25) - 0.25;  // -0.25 to 0.75
  if (x > 0.25) x = 0.5 - x;
  x *= 6.283185307179586;
  const double square = x * x;
  double sum = 1;
  for (int n = 16; n >= 2; n -= 2) sum = 1 - sum * square / (n * (n + 1));
  return x * sum;
}

double Cosine(double turns) {
  return Sine(turns + 0.25);
}

double Exp(double value) {
  if (value < -40) return 0;
  const double x = value / 1024;
  double power = 1 + x * (1 + x / 2 * (1 + x / 3 * (1 + x / 4 * (1 + x / 5))));
  for (int i = 0; i < 10; ++i) power *= power;
  return power;
}

double Decibels(double level) {
  return Exp(level * 0.11512925464970229);
}

double Root(double value) {
  return std::sqrt(value);
}

double Smooth(double from, double to, double value) {
  if (value <= from) return 0;
  if (value >= to) return 1;
  const double x = (value - from) / (to - from);
  return x * x * (3 - 2 * x);
}

double Noise(uint32_t seed, uint32_t place) {
  uint32_t bits = place * 0x9E3779B1u + seed * 0x85EBCA77u + 0x165667B1u;
  bits = (bits ^ (bits >> 15)) * 0x2C1B3C6Du;
  bits = (bits ^ (bits >> 12)) * 0x297A2D39u;
  bits ^= bits >> 15;
  return static_cast<double>(bits) / 2147483647.5 - 1;
}

}  // namespace Exact
