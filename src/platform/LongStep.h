// A long step of the program: one that may take longer than a moment, such as reading a large file
// or waiting for a server.
#pragma once

namespace Platform {

// Lives as long as the step. Meanwhile nothing that the user does begins anything, whatever loop
// runs: ours, or one of a library that the step calls. Windows are painted and answer other
// programs, such as a screen reader, throughout; keys and clicks that come are gone when the step
// is over, so that none of them is taken for the answer to a box that follows. A key that is held
// down then does nothing more until it is let go and pressed anew. A step may stand within another;
// the outer one counts.
class LongStep {
 public:
  // The windows are painted before the step begins: what they say of it is then seen and heard.
  LongStep() noexcept;
  ~LongStep();
  LongStep(const LongStep&) = delete;
  LongStep& operator=(const LongStep&) = delete;

  // To be called between the blocks of the step, so often that no half second passes: answers what
  // other programs ask of the windows, and paints. What another program would do in the user's
  // place, such as press a button or close the window, is refused.
  void AnswerOthers() const;

  // True while any step lives. The windows ask it before they let the user begin something.
  static bool IsRunning();

  // The steps that run wait for an answer of the user while this lives: for a box or a dialog that
  // is shown from within one. Keys and clicks that came until then are dropped, as at the end.
  class Pause {
   public:
    Pause() noexcept;
    ~Pause();
    Pause(const Pause&) = delete;
    Pause& operator=(const Pause&) = delete;

   private:
    int steps_;
  };
};

// What a machine does for a long step; a machine without windows does nothing.
// Answers sent messages and paints.
void AnswerMessages() noexcept;
// Drops what the user did and the program has not handled yet: keys, clicks, and what is asked for
// by the close box, the taskbar or a menu. The end of the program is not dropped. A key that is
// down is deaf from now on until it is pressed anew: what the keyboard repeats of it is dropped
// too, whichever window or box it would reach.
void DropInput() noexcept;

}  // namespace Platform
