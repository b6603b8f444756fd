#include "ui/Stage.h"

#include <algorithm>

#include "base/PerRun.h"
#include "ui/FormView.h"
#include "ui/Forms.h"

namespace Platform {

Stage& TheStage() {
  return PerRun<Stage>();
}

bool Stage::LetsIn(const Form& form) const {
  if (hasEnded_ || boxes_ > 0 || LongStep::IsRunning()) return false;
  return modals_.empty() || modals_.back() == &form;
}

void Stage::Come(Form& form, const Form* before) {
  // While it loaded it showed another, which stands over it.
  const bool isOvertaken = current_ && current_ != before && !IsOn(form);
  if (!isOvertaken) return Put(form);
  if (std::count(openers_.begin(), openers_.end(), &form) == 0) openers_.push_back(&form);
}

void Stage::Put(Form& form) {
  if (hasEnded_) return;
  const bool isReplacing = std::exchange(isLeaving_, false);
  if (current_ == &form) return;
  Form* const previous = current_;
  // The new window is shown before the old one goes, so that no other program comes between them.
  current_ = &form;
  form.isVisible_ = true;
  try {
    form.view_->Show(previous ? previous->view() : nullptr);
  } catch (...) {
    current_ = previous;
    isLeaving_ = isReplacing;
    form.isVisible_ = false;
    form.view_->Hide();
    throw;
  }
  // The main window has no opener, and who is among the openers is on the way back.
  const auto place = std::find(openers_.begin(), openers_.end(), &form);
  if (&form == main_) {
    openers_.clear();
  } else if (place != openers_.end()) {
    openers_.erase(place, openers_.end());
  } else if (previous && !isReplacing) {
    openers_.push_back(previous);
  }
  if (previous) {
    previous->isVisible_ = false;
    if (previous->view_) previous->view_->Hide();
  }
}

void Stage::Leave() {
  // In the middle of an event this waits for its end: another window may be shown until then.
  isLeaving_ = true;
  Settle();
}

void Stage::GoBack() {
  Form* const opener = openers_.empty() ? main_ : openers_.back();
  if (opener && opener != current_) opener->Show();
}

void Stage::PutOff(Form& form, void (Form::*action)()) {
  putOff_.emplace_back(&form, action);
}

void Stage::EventEnds() noexcept {
  --events_;
  Settle();
}

void Stage::BoxCloses() noexcept {
  --boxes_;
  Settle();
}

void Stage::ModalCloses(Form& form) {
  std::erase(modals_, &form);
  Settle();
}

void Stage::Settle() noexcept {
  if (events_ > 0 || IsCovered()) return;
  // What is done here may end with a window asking for more, or with a box that tells of a failure.
  ++events_;
  while (!hasEnded_ && !putOff_.empty()) {
    const auto [form, action] = putOff_.front();
    putOff_.erase(putOff_.begin());
    try {
      (form->*action)();
    } catch (...) {
      TellFailure();
    }
  }
  // Last, as what was put off may have shown the window that takes the place.
  if (!hasEnded_ && std::exchange(isLeaving_, false)) {
    try {
      GoBack();
    } catch (...) {
      TellFailure();
    }
  }
  --events_;
}

void Stage::End() {
  if (hasEnded_) return;
  hasEnded_ = true;
  putOff_.clear();
  // Their loops still run, one within the other, and now return in turn.
  for (Form* form : modals_) form->view_->EndModal();
  if (!current_) return;
  current_->isVisible_ = false;
  if (current_->view_) current_->view_->Hide();
  current_ = nullptr;
}

void Stage::ForgetOpener(Form& form) {
  std::erase(openers_, &form);
}

void Stage::Forget(Form& form) {
  if (main_ == &form) main_ = nullptr;
  if (current_ == &form) {
    current_ = nullptr;
    isLeaving_ = true;  // its opener comes when the running event is over
  }
  std::erase(modals_, &form);
  std::erase(openers_, &form);
  std::erase_if(putOff_, [&](const auto& action) { return action.first == &form; });
}

}  // namespace Platform
