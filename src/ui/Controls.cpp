#include "ui/Controls.h"

#include <algorithm>
#include <utility>

#include "platform/LetterCase.h"
#include "ui/FormView.h"
#include "ui/Forms.h"

namespace Platform {

Control::Control(Form& form, Kind kind, const LangText& caption)
    : form_(form), kind_(kind), captionText_(caption) {
  form_.controls_.push_back(this);
}

Control::~Control() {
  form_.TakeDown();  // the view must not outlive what it mirrors
  std::erase(form_.controls_, this);
}

void Control::SetCaption(const std::string& caption) {
  caption_ = caption;
  if (form_.view()) form_.view()->CaptionChanged(*this);
}

void Control::SetEnabled(bool isEnabled) {
  // A state that stays is not told: each telling lays the window out anew.
  if (isEnabled == isEnabled_) return;
  isEnabled_ = isEnabled;
  StateChanged();
}

void Control::SetVisible(bool isVisible) {
  if (isVisible == isVisible_) return;
  isVisible_ = isVisible;
  StateChanged();
}

void Control::StateChanged() {
  if (HasFocus() && !TakesFocus()) form_.MoveFocusOn();
  // A window in which nothing could take the focus has it on the first control that can again.
  const bool isFirstUsable = !form_.focus() && TakesFocus();
  if (isFirstUsable) form_.focus_ = this;
  if (!form_.view()) return;
  form_.view()->StateChanged(*this);
  if (isFirstUsable) form_.view()->FocusChanged();
}

bool Control::TakesFocus() const {
  return kind_ != Kind::Label && isEnabled_ && isVisible_;
}

void Control::Focus() {
  if (!TakesFocus()) return;
  form_.focus_ = this;
  if (form_.view()) form_.view()->FocusChanged();
}

bool Control::HasFocus() const {
  return form_.focus() == this;
}

void TextBox::SetText(const std::string& text) {
  text_ = text;
  if (form().view()) form().view()->TextChanged(*this);
}

void TextBox::SelectAll() {
  if (form().view()) form().view()->AllSelected(*this);
}

void TextBox::Typed(const std::string& text) {
  // The system tells of a text that the program set, too.
  if (text == text_) return;
  // The view is ahead of the model, and is put back.
  if (!form().TakesInput()) return SetText(text_);
  text_ = text;
  if (OnChange) Dispatch(OnChange);
}

void ListBox::SetRows(std::vector<std::string> rows, int selected) {
  rows_.swap(rows);
  const int selectedBefore = selected_;
  selected_ = Contains(selected) ? selected : -1;
  if (!form().view()) return;
  try {
    form().view()->RowsSet(*this);
  } catch (...) {
    PutBack(rows, selectedBefore);
    throw;
  }
}

void ListBox::PutBack(std::vector<std::string>& rows, int selected) noexcept {
  rows_.swap(rows);
  selected_ = selected;
  try {
    // The rows that failed have given their memory back, so that the old ones fit again.
    form().view()->RowsSet(*this);
  } catch (...) {
    Clear();  // if not even they do, there are none, on the screen as here
  }
}

void ListBox::Add(const std::string& row) {
  rows_.push_back(row);
  if (!form().view()) return;
  try {
    form().view()->RowAdded(*this);
  } catch (...) {
    rows_.pop_back();
    throw;
  }
}

void ListBox::Remove(int index) {
  // The row that comes into the gap is selected next; behind the last there is none.
  const bool isMovedUp = index < selected_ || selected_ == count() - 1;
  Remove(index, isMovedUp ? selected_ - 1 : selected_);
}

void ListBox::Remove(int index, int selected) {
  if (!Contains(index)) return;
  rows_.erase(rows_.begin() + index);
  if (form().view()) form().view()->RowRemoved(*this, index);
  Select(selected);
  if (OnSelect) OnSelect();
}

void ListBox::Select(int index) {
  selected_ = Contains(index) ? index : -1;
  if (form().view()) form().view()->SelectionChanged(*this);
}

void ListBox::Selected(int index) {
  // The row is on the screen already; the old one is shown again.
  if (!form().TakesInput()) return Select(selected_);
  selected_ = Contains(index) ? index : -1;
  if (OnSelect) Dispatch(OnSelect);
}

bool ListBox::TakeSelection() {
  const int shown = form().view()->SelectedRow(*this);
  const int before = std::exchange(selected_, Contains(shown) ? shown : -1);
  return selected_ != before;
}

void ListBox::DoubleClicked() {
  if (OnDoubleClick && form().TakesInput()) Dispatch(OnDoubleClick);
}

void Button::Click() {
  if (!TakesFocus() || !OnClick || !form().TakesInput()) return;
  Dispatch([this] {
    // Asked again: a list's OnSelect may have disabled the button meanwhile.
    if (!form().TakeSelections() || !TakesFocus() || !OnClick) return;
    const auto handler = OnClick;  // which may be the end of this button
    handler();
  });
}

char AccessKey(const std::string& caption) {
  for (size_t i = 0; i + 1 < caption.size(); ++i) {
    if (caption[i] != '&') continue;
    // Two of them are a single "&" that is shown, and no key.
    if (caption[++i] != '&') return LowerCase(caption.substr(i, 1)).front();
  }
  return 0;
}

std::string WithoutAccessKey(const std::string& caption) {
  std::string shown;
  for (size_t i = 0; i < caption.size(); ++i) {
    if (caption[i] == '&' && ++i == caption.size()) break;
    shown += caption[i];
  }
  return shown;
}

std::string AsCaption(const std::string& text) {
  std::string caption;
  for (const char c : text) caption.append(c == '&' ? 2 : 1, c);
  return caption;
}

}  // namespace Platform
