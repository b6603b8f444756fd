// The parts of random tracks are drawn evenly and independently, whatever the clock does.
#include <cmath>
#include <cstdlib>
#include <set>

#include "base/LineReader.h"
#include "tests/app/PackStory.h"

namespace {

constexpr int PartCount = 100000;
constexpr int Curves = 12;    // all but the clock
constexpr int Surfaces = 3;   // all but the sand
constexpr int Lengths = 495;  // 5000 to 499000 in steps of 1000

// How far the counts lie from even ones: the sum of squared deviations, each by what it should be.
double ChiSquare(const std::vector<int>& counts, double draws) {
  const double expected = draws / static_cast<double>(counts.size());
  double sum = 0;
  for (const int count : counts) sum += (count - expected) * (count - expected) / expected;
  return sum;
}

// The value that chi-square passes once in 100,000 tries, above for positive and below for negative
// deviations, by the approximation of Wilson and Hilferty. Counts that are too even are as telling
// as counts that are too uneven.
double CriticalValue(size_t cells, double deviations) {
  const double freedom = static_cast<double>(cells) - 1;
  const double spread = 2 / (9 * freedom);
  return freedom * std::pow(1 - spread + deviations * std::sqrt(spread), 3);
}

void ExpectEven(const std::string& what, const std::vector<int>& counts, double draws) {
  constexpr double OnceIn100000 = 4.265;
  const double chiSquare = ChiSquare(counts, draws);
  EXPECT_LT(chiSquare, CriticalValue(counts.size(), OnceIn100000)) << what;
  EXPECT_GT(chiSquare, CriticalValue(counts.size(), -OnceIn100000)) << what;
}

struct Part {
  int curve, surface, length;  // all counted from 0
};

// How the clock runs while the parts are drawn, in seconds per call; the time at which it begins.
struct ClockCase {
  double tick;
  double start;
};

class RandomTrackChance : public PackStory, public testing::WithParamInterface<ClockCase> {
 protected:
  RandomTrackChance() { StartPack(); }

  std::vector<Part> MakesParts() {
    machine.clock.Set(GetParam().start);
    machine.clock.TickPerCall(GetParam().tick);
    user.ChoosesFile("chance");
    user.AnswersNo();
    user.TypesInBox(std::to_string(PartCount));
    user.AnswersNo();
    user.ChoosesMenu({"Track", "Random Track"});
    const auto lines = LinesOf(machine.files.Text(Game + "\\tracks\\chance.trk"));
    EXPECT_EQ(lines.size(), PartCount * 3 + 2u);
    std::vector<Part> parts;
    for (size_t i = 0; i + 2 < lines.size() - 2; i += 3) {
      const int length = std::atoi(lines[i + 2].c_str());
      EXPECT_EQ(length % 1000, 0);
      parts.push_back(
          {std::atoi(lines[i].c_str()), std::atoi(lines[i + 1].c_str()), length / 1000 - 5});
    }
    return parts;
  }
};

TEST_P(RandomTrackChance, EveryValueAndEveryPairOfConsecutiveDrawsIsEquallyLikely) {
  const std::vector<Part> parts = MakesParts();
  ASSERT_EQ(parts.size(), static_cast<size_t>(PartCount));
  std::vector<int> curves(Curves), surfaces(Surfaces), lengths(Lengths);
  std::vector<int> curveThenSurface(Curves * Surfaces), surfaceThenLength(Surfaces * Lengths);
  std::vector<int> lengthThenCurve(Lengths * Curves), curveThenCurve(Curves * Curves);
  std::vector<int> surfaceThenSurface(Surfaces * Surfaces), lengthThenLength(33 * 33);
  for (size_t i = 0; i < parts.size(); ++i) {
    const auto& [curve, surface, length] = parts[i];
    // No clock and no sand; lengths of 5000 to 499000.
    ASSERT_TRUE(curve >= 0 && curve < Curves && surface >= 0 && surface < Surfaces && length >= 0 &&
                length < Lengths);
    ++curves.at(static_cast<size_t>(curve));
    ++surfaces.at(static_cast<size_t>(surface));
    ++lengths.at(static_cast<size_t>(length));
    ++curveThenSurface.at(static_cast<size_t>(curve * Surfaces + surface));
    ++surfaceThenLength.at(static_cast<size_t>(surface * Lengths + length));
    if (i + 1 == parts.size()) break;
    const Part& next = parts[i + 1];
    ++lengthThenCurve.at(static_cast<size_t>(length * Curves + next.curve));
    ++curveThenCurve.at(static_cast<size_t>(curve * Curves + next.curve));
    ++surfaceThenSurface.at(static_cast<size_t>(surface * Surfaces + next.surface));
    ++lengthThenLength.at(static_cast<size_t>(length / 15 * 33 + next.length / 15));
  }
  ExpectEven("curves", curves, PartCount);
  ExpectEven("surfaces", surfaces, PartCount);
  ExpectEven("lengths", lengths, PartCount);
  ExpectEven("a curve and its surface", curveThenSurface, PartCount);
  ExpectEven("a surface and its length", surfaceThenLength, PartCount);
  ExpectEven("a length and the next curve", lengthThenCurve, PartCount - 1);
  ExpectEven("a curve and the next", curveThenCurve, PartCount - 1);
  ExpectEven("a surface and the next", surfaceThenSurface, PartCount - 1);
  ExpectEven("a length and the next", lengthThenLength, PartCount - 1);
}

INSTANTIATE_TEST_SUITE_P(AClock, RandomTrackChance,
                         testing::Values(ClockCase{0, 0},          // stands still at midnight
                                         ClockCase{0, 43200},      // stands still at noon
                                         ClockCase{0, 86399.999},  // stands still
                                         ClockCase{1e-7, 43200},   // runs finely
                                         ClockCase{1.0 / 64, 1},   // runs in the ticks of a timer
                                         ClockCase{1, 0},          // runs in whole seconds
                                         ClockCase{3600, 0}));     // comes round again and again

}  // namespace
