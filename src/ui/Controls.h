// The native controls of a window: label, text box, list box, button.
//
// A control keeps what it shows; the window's view mirrors it on the screen while the window is
// loaded, and tells it what the user does. A control's label is a part of it: it is made directly
// before it and shares its enabled and visible state, which is how Windows names it to a screen
// reader and how its access key reaches it.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/LangText.h"

namespace Platform {

class Form;

class Control {
 public:
  enum class Kind { Label, TextBox, ListBox, Button };

  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  Kind kind() const { return kind_; }
  Form& form() const { return form_; }

  // The text by which the user knows the control, "&" before its access key: its own text if it is
  // a button or a label, otherwise the text of the label before it. Looked up anew at each load.
  const std::string& caption() const { return caption_; }
  void SetCaption(const std::string& caption);

  bool IsEnabled() const { return isEnabled_; }
  bool IsVisible() const { return isVisible_; }
  // A focused control that is disabled or hidden hands the focus on to the next one first.
  void SetEnabled(bool isEnabled);
  void SetVisible(bool isVisible);

  // True if Tab stops here: every control but a label, while it is enabled and visible.
  bool TakesFocus() const;
  // Moves the focus here; the default button stays right. Does nothing if it takes no focus.
  void Focus();
  bool HasFocus() const;

 protected:
  Control(Form& form, Kind kind, const LangText& caption);
  ~Control();

 private:
  friend class Form;
  void StateChanged();

  Form& form_;
  Kind kind_;
  LangText captionText_;
  std::string caption_;
  bool isEnabled_ = true;
  bool isVisible_ = true;
};

// A text that explains the window, heard when the window opens. It names no control.
class Label final : public Control {
 public:
  struct Options {
    LangText text;
  };
  Label(Form& form, const Options& options) : Control(form, Kind::Label, options.text) {}
};

class TextBox final : public Control {
 public:
  struct Options {
    LangText label;
    bool isReadOnly = false;  // shown for reading and copying; a tab stop all the same
    bool isMultiline = false;
  };
  TextBox(Form& form, const Options& options)
      : Control(form, Kind::TextBox, options.label), options_(options) {}

  const std::string& text() const { return text_; }
  void SetText(const std::string& text);
  // Selects everything, so that typing replaces it.
  void SelectAll();

  bool IsReadOnly() const { return options_.isReadOnly; }
  bool IsMultiline() const { return options_.isMultiline; }

  std::function<void()> OnChange;  // the user changed the text

  // For the view: the text as the user has it now.
  void Typed(const std::string& text);

 private:
  Options options_;
  std::string text_;
};

class ListBox final : public Control {
 public:
  struct Options {
    LangText label;
  };
  ListBox(Form& form, const Options& options) : Control(form, Kind::ListBox, options.label) {}

  int count() const { return static_cast<int>(rows_.size()); }
  const std::string& row(int index) const { return rows_.at(static_cast<size_t>(index)); }

  // Puts rows in place of those that are there, and selects one of them; an index outside the list
  // selects none. Does not run OnSelect. Many rows go in faster together than one by one. Fails
  // when memory has run out; rows and selection are then as they were.
  void SetRows(std::vector<std::string> rows, int selected);
  void Clear() { SetRows({}, -1); }
  // Adds a row behind the others. Fails when memory has run out; the list is then as it was.
  void Add(const std::string& row);

  // Removes a row; an index outside the list does nothing. The selected row stays selected; if it
  // was the removed one, the row that follows it is selected, or the last. Runs OnSelect, so that
  // what shows the selected row follows; what that fails with is passed on, the row being removed.
  void Remove(int index);
  // The same, but selects the row that the window wants, counted after the removal; an index
  // outside the list selects none.
  void Remove(int index, int selected);

  // The selected row, counted from 0; -1 if there is none.
  int selected() const { return selected_; }
  // Selects a row; an index outside the list selects none. Does not run OnSelect.
  void Select(int index);

  // The user chose a row, by key or by mouse, or a row was removed. It may be the row that was
  // selected before: a click on it is a choice too, and an arrow key that can go no further is told
  // like one that can. So the handler must do no harm when it runs again.
  std::function<void()> OnSelect;
  std::function<void()> OnDoubleClick;  // only ever repeats a button

  // For the view: what the user did.
  void Selected(int index);
  void DoubleClicked();

 private:
  friend class Form;
  // True if the view has another row selected than the program knows of; it is now selected here.
  bool TakeSelection();
  void PutBack(std::vector<std::string>& rows, int selected) noexcept;
  bool Contains(int index) const { return index >= 0 && index < count(); }

  std::vector<std::string> rows_;
  int selected_ = -1;
};

class Button final : public Control {
 public:
  struct Options {
    LangText text;
    bool isDefault = false;  // pressed by Enter from every control that is not a button
    bool isCancel = false;   // pressed by Escape
  };
  Button(Form& form, const Options& options)
      : Control(form, Kind::Button, options.text), options_(options) {}

  bool IsDefault() const { return options_.isDefault; }
  bool IsCancel() const { return options_.isCancel; }

  std::function<void()> OnClick;

  // Presses the button, as the user does. Does nothing while it is disabled or hidden.
  void Click();

 private:
  Options options_;
};

// The letter behind the first single "&" of a caption, in lower case; 0 if there is none.
char AccessKey(const std::string& caption);
// The caption as it is shown: without the "&" of the access key, and with "&" for "&&".
std::string WithoutAccessKey(const std::string& caption);
// A text from outside as a caption: its "&" are doubled, so that they are shown.
std::string AsCaption(const std::string& text);

}  // namespace Platform
