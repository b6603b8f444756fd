// Which of the program's windows is seen, who opened whom, and when what the user does may begin
// something. For the window kit alone: a tool says what it wants by the functions of Form.
#pragma once

#include <utility>
#include <vector>

#include "platform/LongStep.h"

namespace Platform {

class Form;

class Stage {
 public:
  // The main window: the others are opened from it, in one step or in several.
  Form* main() const { return main_; }
  void SetMain(Form& form) { main_ = &form; }

  // The window in the user's hands: the modal one on top, otherwise the one on the stage.
  Form* InUse() const { return modals_.empty() ? current_ : modals_.back(); }
  bool IsOn(const Form& form) const { return current_ == &form; }
  // A box, a dialog or a modal window stands over the stage. Until it has gone nothing on the stage
  // changes, since the window there owns it.
  bool IsCovered() const { return boxes_ > 0 || !modals_.empty(); }
  // What the user does in a window may begin something: nothing stands over it, the program goes
  // on, and no long step runs.
  bool LetsIn(const Form& form) const;

  // A window that has loaded comes on the stage.
  //   before  the window that was there when it began to load. If another was shown meanwhile, it
  //           stands over the one that comes, as if it had been opened from there.
  void Come(Form& form, const Form* before);
  // The window on the stage gives up its place: see Form::Leave.
  void Leave();
  void GoBack();
  // Does it once nothing stands over the stage any more and the running event is over.
  void PutOff(Form& form, void (Form::*action)());

  void EventBegins() { ++events_; }
  void EventEnds() noexcept;
  bool IsHandlingEvents() const { return events_ > 0; }
  void BoxOpens() { ++boxes_; }
  void BoxCloses() noexcept;
  void ModalOpens(Form& form) { modals_.push_back(&form); }
  void ModalCloses(Form& form);

  // Takes all windows from the screen at once, without asking any of them.
  void End();
  bool HasEnded() const { return hasEnded_; }

  // The window is not loaded any more: it opened nobody.
  void ForgetOpener(Form& form);
  // The window is destroyed.
  void Forget(Form& form);

 private:
  void Put(Form& form);
  // Does what was put off; gives a stage that was left to the opener. Failures are told.
  void Settle() noexcept;

  Form* main_ = nullptr;
  Form* current_ = nullptr;  // on the screen; null only before the start and after the end
  bool isLeaving_ = false;   // current has given up its place, and waits for who takes it
  // The windows from which the current one was opened, the first one first. They are loaded and
  // hidden, and it goes back to the last of them.
  std::vector<Form*> openers_;
  std::vector<Form*> modals_;  // over the current window, the one in use last
  std::vector<std::pair<Form*, void (Form::*)()>> putOff_;
  int boxes_ = 0;   // boxes and dialogs of the system that are open
  int events_ = 0;  // events being handled, one within the other
  bool hasEnded_ = false;
};

Stage& TheStage();

// A box or a dialog of the system stands over the windows while this lives. Nothing begins in them,
// and the user can answer it even if a long step shows it.
class BoxOverStage {
 public:
  BoxOverStage() { TheStage().BoxOpens(); }
  ~BoxOverStage() { TheStage().BoxCloses(); }
  BoxOverStage(const BoxOverStage&) = delete;
  BoxOverStage& operator=(const BoxOverStage&) = delete;

 private:
  LongStep::Pause pause_;
};

}  // namespace Platform
