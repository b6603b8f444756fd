#include "Filters.h"

#include "Exact.h"

namespace {

constexpr double Turn = 6.283185307179586;

}  // namespace

double Loudness(const Samples& samples) {
  double sum = 0;
  for (const double sample : samples) sum += sample * sample;
  return Exact::Root(sum / static_cast<double>(samples.size()));
}

void Add(Samples& sum, const Samples& part, double gain) {
  for (size_t i = 0; i < sum.size(); ++i) sum[i] += gain * part[i];
}

size_t QuietPlace(const Samples& loop) {
  size_t best = 0;
  double least = 1;
  for (size_t i = 1; i < loop.size() / 10; ++i) {
    const double sum = loop[i - 1] * loop[i - 1] + loop[i] * loop[i] + loop[i + 1] * loop[i + 1];
    if (sum < least) {
      least = sum;
      best = i;
    }
  }
  return best;
}

LowPass::LowPass(double hertz) : share_(1 - Exact::Exp(-Turn * hertz / Rate)) {}

double LowPass::operator()(double sample) {
  value_ += share_ * (sample - value_);
  return value_;
}

Resonator::Resonator(const Resonance& resonance) {
  const double turns = resonance.hertz / Rate;
  // Half the width, as the tangent would have it where it is small against the rate.
  const double half = Exact::Sine(turns) * resonance.width / (2 * resonance.hertz);
  gain_ = resonance.level * half / (1 + half);
  back1_ = 2 * Exact::Cosine(turns) / (1 + half);
  back2_ = (half - 1) / (1 + half);
}

double Resonator::operator()(double sample) {
  const double out = gain_ * (sample - in2_) + back1_ * out1_ + back2_ * out2_;
  in2_ = in1_;
  in1_ = sample;
  out2_ = out1_;
  out1_ = out;
  return out;
}

Body::Body(const std::vector<Resonance>& resonances) {
  for (const Resonance& each : resonances) resonators_.emplace_back(each);
}

double Body::operator()(double sample) {
  double sum = 0;
  for (Resonator& each : resonators_) sum += each(sample);
  return sum;
}

Pipe::Pipe(const PipeShape& shape)
    : reflection_(shape.reflection),
      edge_(shape.hertz),
      within_(static_cast<size_t>(Exact::Floor(shape.seconds * Rate + 0.5))) {}

double Pipe::operator()(double sample) {
  double& end = within_[place_];
  const double out = sample - reflection_ * edge_(end);
  end = out;
  place_ = (place_ + 1) % within_.size();
  return out;
}
