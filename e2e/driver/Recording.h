// What comes out of the speakers.
//
// The machine around the tests records all that is played, all the time, and writes it to the end
// of a file: samples of 16 bits, mono, 44100 a second, without a head. So nothing that a test hears
// depends on when it was looked at, and silence is recorded too.
#pragma once

#include <string>

#include "e2e/driver/SoundMeasures.h"

namespace E2e {

class Recording {
 public:
  // Begins now: what was recorded before is not part of it. What is played from now on comes a
  // moment later.
  //   file  the path of that file. Throws std::runtime_error if it cannot be read.
  explicit Recording(const std::string& file);

  // All that was recorded since it began.
  Sound SoFar() const;

  // Waits until a sound is heard, and leaves out the silence before it. Fails with Overdue if none
  // comes.
  void WaitForSound();
  // Waits until nothing has been heard for so long. Returns what was heard before that silence.
  Sound WaitForSilence(double seconds);
  // Waits until so much has been recorded, and returns it. The recording begins anew behind it.
  Sound Take(double seconds);

 private:
  std::string file_;
  size_t begin_;  // the number of its first sample in the file
};

}  // namespace E2e
