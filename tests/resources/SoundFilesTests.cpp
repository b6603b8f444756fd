// The sounds of the vehicles, as the build has made them: that they are all there, sound files, and
// what they are meant to be for people who know a vehicle by its sound.
#include <gmock/gmock.h>

#include <cmath>
#include <cstdio>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "tests/ProjectFile.h"
#include "tests/Texts.h"
#include "tests/resources/SoundAnalysis.h"
#include "tests/resources/SoundChecksum.h"
#include "vehicles/InternalSounds.h"

namespace {

namespace fs = std::filesystem;
using Analysis::Samples;
using testing::AllOf;
using testing::Each;
using testing::Ge;
using testing::Gt;
using testing::Le;
using testing::Lt;
using testing::SizeIs;

const fs::path Folder = ProjectFile::Sounds;
constexpr int Rate = 22050;

std::string NameOf(std::string_view vehicle, const InternalSoundKind& kind) {
  return std::string(vehicle) + std::string(kind.suffix);
}

std::vector<std::string> NamesOf(const InternalSoundKind& kind) {
  std::vector<std::string> names;
  for (const std::string_view vehicle : kind.names) names.push_back(NameOf(vehicle, kind));
  return names;
}

std::vector<std::string> AllNames() {
  std::vector<std::string> names;
  for (const InternalSoundKind& kind : InternalSoundKinds) {
    for (std::string& name : NamesOf(kind)) names.push_back(std::move(name));
  }
  return names;
}

const InternalSoundKind& Engines = InternalSoundKinds[0];
const InternalSoundKind& Throttles = InternalSoundKinds[1];
const InternalSoundKind& Ignitions = InternalSoundKinds[2];
const InternalSoundKind& Horns = InternalSoundKinds[3];

std::string BytesOf(const std::string& name) {
  return ProjectFile::BytesOf(Folder / (name + ".wav"));
}

Samples SoundOf(const std::string& name) {
  return Analysis::Read(BytesOf(name)).samples;
}

double SecondsOf(const Samples& samples) {
  return static_cast<double>(samples.size()) / Rate;
}

// How much brighter than another a sound is.
double Brightness(const Samples& one, const Samples& other) {
  return CentreOf(Analysis::SpectrumOf(one, Rate)) / CentreOf(Analysis::SpectrumOf(other, Rate));
}

TEST(SoundFiles, AreThe22OfTheGame) {
  std::set<std::string> found;
  for (const auto& entry : fs::directory_iterator(Folder)) {
    if (entry.path().extension() == ".wav") found.insert(entry.path().stem().string());
  }
  EXPECT_THAT(AllNames(), SizeIs(22));
  EXPECT_THAT(found, testing::UnorderedElementsAreArray(AllNames()));
}

TEST(SoundFiles, BecomeResourcesOfTheProgram) {
  std::string expected = "// Made by make-sounds.\n";
  for (const std::string& name : AllNames()) expected += name + " 1408 \"" + name + ".wav\"\n";
  EXPECT_EQ(ProjectFile::BytesOf(Folder / "sounds.rc"), expected);
}

TEST(SoundFiles, AreWholeWaveFilesOf16BitsAndOneChannel) {
  for (const std::string& name : AllNames()) {
    const Analysis::WaveFile file = Analysis::Read(BytesOf(name));
    EXPECT_EQ(file.fault, "") << name;
    EXPECT_EQ(file.channels, 1) << name;
    EXPECT_EQ(file.bits, 16) << name;
    EXPECT_EQ(file.rate, Rate) << name << ": what an engine has at its idle frequency of 22050";
  }
}

// Beside the voice of a screen reader, and one beside the other.
TEST(SoundFiles, AreAsLoudAsEachOther) {
  for (const std::string& name : AllNames()) {
    EXPECT_THAT(Analysis::LevelOf(SoundOf(name)), AllOf(Ge(-20), Le(-12))) << name;
  }
}

TEST(SoundFiles, AreNeitherCutOffNorBesideTheMiddle) {
  for (const std::string& name : AllNames()) {
    const Samples samples = SoundOf(name);
    EXPECT_LT(Analysis::PeakOf(samples), 0.9) << name;
    EXPECT_LT(std::abs(Analysis::OffsetOf(samples)), 0.001) << name;
  }
}

TEST(SoundFiles, LastOneToTwoSeconds) {
  for (const std::string& name : AllNames()) {
    EXPECT_THAT(SecondsOf(SoundOf(name)), AllOf(Ge(1), Le(2))) << name;
  }
}

TEST(SoundFiles, LoopWithoutAClick) {
  for (const InternalSoundKind* kind : {&Engines, &Throttles, &Horns}) {
    for (const std::string& name : NamesOf(*kind)) {
      const Samples samples = SoundOf(name);
      const Analysis::Joint joint = Analysis::JointOf(samples, samples);
      EXPECT_LE(joint.step, joint.usualStep) << name;
      EXPECT_LE(joint.bend, joint.strongBend) << name;
    }
  }
}

// A loop is cut where its sound is about 0, so that it begins without a click as well.
TEST(SoundFiles, BeginQuietly) {
  for (const std::string& name : AllNames()) {
    EXPECT_LT(std::abs(SoundOf(name)[0]), 0.02) << name;
  }
}

TEST(SoundFiles, NoEngineIsTakenForAnother) {
  const std::vector<std::string> names = NamesOf(Engines);
  for (size_t i = 0; i < names.size(); ++i) {
    for (size_t j = 0; j < i; ++j) {
      EXPECT_GE(Analysis::Distance(SoundOf(names[i]), SoundOf(names[j]), Rate), 5)
          << names[i] << " and " << names[j];
    }
  }
}

// So that the distance between engines means something.
TEST(SoundFiles, EachEngineIsTakenForItself) {
  for (const std::string& name : NamesOf(Engines)) {
    const Samples samples = SoundOf(name);
    const double half = SecondsOf(samples) / 2;
    EXPECT_LE(Analysis::Distance(Analysis::Part(samples, 0, half, Rate),
                                 Analysis::Part(samples, half, half - 0.001, Rate), Rate),
              3)
        << name;
  }
}

TEST(SoundFiles, AnEngineUnderLoadIsBrighterAndLouder) {
  for (const std::string_view vehicle : Throttles.names) {
    const Samples engine = SoundOf(NameOf(vehicle, Engines));
    const Samples throttle = SoundOf(NameOf(vehicle, Throttles));
    EXPECT_GE(Brightness(throttle, engine), 1.5) << vehicle;
    EXPECT_GE(Analysis::LevelOf(throttle) - Analysis::LevelOf(engine), 0.5) << vehicle;
  }
}

TEST(SoundFiles, AnIgnitionEndsWhereTheEngineBegins) {
  for (const std::string_view vehicle : Ignitions.names) {
    const Samples ignition = SoundOf(NameOf(vehicle, Ignitions));
    const Samples engine = SoundOf(NameOf(vehicle, Engines));
    const Analysis::Joint joint = Analysis::JointOf(ignition, engine);
    EXPECT_LE(joint.step, joint.usualStep) << vehicle;
    EXPECT_LE(joint.bend, joint.strongBend) << vehicle;
    // At the end it is the engine's own sound, sample for sample.
    for (size_t i = 1; i <= Rate / 10; ++i) {
      ASSERT_NEAR(ignition[ignition.size() - i], engine[engine.size() - i], 16.0 / 32768)
          << vehicle << ", " << i << " samples before the end";
    }
    const Samples end = Analysis::Part(ignition, -0.3, 0.3, Rate);
    const Samples beginning = Analysis::Part(engine, 0, 0.3, Rate);
    EXPECT_NEAR(Analysis::LevelOf(end), Analysis::LevelOf(beginning), 1.5) << vehicle;
    EXPECT_LE(Analysis::Distance(end, beginning, Rate), 3.5) << vehicle;
  }
}

TEST(SoundFiles, AnIgnitionBeginsWithTheStarter) {
  for (const std::string_view vehicle : Ignitions.names) {
    const Samples engine = SoundOf(NameOf(vehicle, Engines));
    const Samples starter = Analysis::Part(SoundOf(NameOf(vehicle, Ignitions)), 0.15, 0.3, Rate);
    EXPECT_GE(Analysis::Distance(starter, engine, Rate), 6) << vehicle;
    EXPECT_GE(Brightness(starter, engine), 1.5) << vehicle;
    EXPECT_NEAR(Analysis::LevelOf(starter), Analysis::LevelOf(engine), 3) << vehicle;
  }
}

// The least whole number up to 8 of which a share of the others makes the ratio, as "3:2"; empty if
// there is none.
std::string IntervalOf(double ratio) {
  for (int lower = 1; lower <= 8; ++lower) {
    const double upper = std::round(ratio * lower);
    if (std::abs(ratio * lower - upper) < 0.008 * upper) {
      return std::to_string(static_cast<int>(upper)) + ":" + std::to_string(lower);
    }
  }
  return "";
}

TEST(SoundFiles, EachHornHasAChordOfItsOwn) {
  std::set<std::string> chords;
  for (const std::string& name : NamesOf(Horns)) {
    const std::vector<double> tones =
        Analysis::TonesOf(Analysis::SpectrumOf(SoundOf(name), Rate), 900);
    ASSERT_THAT(tones, SizeIs(AllOf(Ge(2u), Le(3u)))) << name;
    std::string chord;
    for (size_t i = 1; i < tones.size(); ++i) {
      const std::string interval = IntervalOf(tones[i] / tones[0]);
      EXPECT_NE(interval, "") << name << " has " << tones[0] << " and " << tones[i] << " Hz";
      chord += interval + " ";
    }
    EXPECT_TRUE(chords.insert(chord).second) << name << " has the chord " << chord << "of another";
  }
}

TEST(SoundFiles, AreTheSameBytesWhereverTheyAreMade) {
  uint32_t sum = 0;
  for (const std::string& name : AllNames()) sum = Crc32(BytesOf(name), sum);
  EXPECT_EQ(sum, InternalSoundsChecksum) << "see SoundChecksum.h";
}

TEST(SoundFiles, ChecksumIsTheUsualOne) {
  EXPECT_EQ(Crc32("123456789"), 0xCBF43926u);
  EXPECT_EQ(Crc32("6789", Crc32("12345")), 0xCBF43926u);
}

// The page for those who would rather look.
TEST(SoundFiles, AreShownInTheDocuments) {
  const std::string page = ProjectFile::BytesOf("docs/sounds.md");
  for (const std::string& name : AllNames()) {
    EXPECT_TRUE(Texts::Contains(page, "(sounds/" + name + ".png)")) << name;
    EXPECT_NE(ProjectFile::BytesOf("docs/sounds/" + name + ".png"), "") << name;
    EXPECT_TRUE(Texts::Contains(page, "| " + name + " |")) << name;
  }
  char checksum[9] = "";
  std::snprintf(checksum, sizeof checksum, "%08x", InternalSoundsChecksum);
  EXPECT_TRUE(Texts::Contains(page, std::string("the CRC-32 ") + checksum))
      << "run scripts/draw-sounds.py";
}

}  // namespace
