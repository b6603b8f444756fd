#include "ui/Forms.h"

#include <algorithm>
#include <map>
#include <new>
#include <string_view>
#include <utility>

#include "base/PerRun.h"
#include "base/RuntimeError.h"
#include "text/FailureText.h"
#include "text/StringTable.h"
#include "ui/BoxView.h"
#include "ui/FormView.h"
#include "ui/MsgBox.h"

namespace Platform {

// The windows of a run and which of them is seen.
struct Stage {
  Form* main = nullptr;
  Form* current = nullptr;  // on the screen; null only before the start and after the end
  bool isLeaving = false;   // current has given up its place, and waits for who takes it
  // The windows from which the current one was opened, the first one first. They are hidden, and it
  // goes back to the last of them.
  std::vector<Form*> openers;
  int dispatches = 0;  // events being handled, one within the other
  bool hasEnded = false;
  std::vector<Form*> modals;  // over the current window, the one in use last

  void Put(Form& form);
  void GoBack();
  void Settle();
  void End();
  void Forget(Form& form);
};

namespace {

Stage& TheStage() {
  return PerRun<Stage>();
}

// Tells the user that an action could not be finished.
void Report(const LangText& cause, const std::string& file) {
  MsgBox(FailureText(cause, file), GetLangString(RuntimeErrorTexts.Title), Icon::Critical);
}

// The same where the report itself fails: with nothing that could fail again.
void ReportInBrief(const LangText& cause) noexcept {
  try {
    ShowBox({cause.english, RuntimeErrorTexts.Title.english, Icon::Critical, Buttons::Ok}, true);
  } catch (...) {
    // Nothing is left that could tell of it; the program goes on.
  }
}

void ReportSafely(const LangText& cause, const std::string& file = {}) noexcept {
  try {
    Report(cause, file);
  } catch (...) {
    ReportInBrief(cause);
  }
}

// True for a key with which a text box moves, types, deletes, or uses the clipboard.
bool IsForEditing(const KeyEvent& key) {
  if (key.code >= Key::PageUp && key.code <= Key::Delete) return true;
  if (key.shift == Shift::Ctrl && key.code >= 'A' && key.code <= 'Z') {
    return std::string_view("ACVXZ").find(static_cast<char>(key.code)) != std::string_view::npos;
  }
  if (key.shift & (Shift::Ctrl | Shift::Alt)) return false;
  const bool isDialogKey =
      key.code == Key::Tab || key.code == Key::Enter || key.code == Key::Escape;
  const bool isFunctionKey = key.code >= Key::F1 && key.code <= Key::F24;
  return !isDialogKey && !isFunctionKey;
}

void AddSharedKeys(std::vector<std::string>& shared, const std::vector<std::string>& captions) {
  std::map<char, std::string> owners;
  for (const std::string& caption : captions) {
    const char key = AccessKey(caption);
    if (key == 0) continue;
    const auto [owner, isFirst] = owners.emplace(key, caption);
    if (!isFirst) shared.push_back(owner->second + " / " + caption);
  }
}

void AddSharedKeys(std::vector<std::string>& shared, const std::vector<MenuItem*>& items) {
  std::vector<std::string> captions;
  for (const MenuItem* item : items) {
    captions.push_back(item->caption());
    AddSharedKeys(shared, item->items());
  }
  AddSharedKeys(shared, captions);
}

}  // namespace

void Stage::Put(Form& form) {
  const bool isReplacing = std::exchange(isLeaving, false);
  if (hasEnded || current == &form) return;
  Form* const previous = current;
  // The new window is shown before the old one goes, so that no other program comes between them.
  current = &form;
  form.isVisible_ = true;
  try {
    form.view_->Show(previous ? previous->view() : nullptr);
  } catch (...) {
    current = previous;
    form.isVisible_ = false;
    form.view_->Hide();
    throw;
  }
  const auto place = std::find(openers.begin(), openers.end(), &form);
  if (place != openers.end()) {
    openers.erase(place, openers.end());  // this is the way back
  } else if (previous && !isReplacing) {
    openers.push_back(previous);
  }
  if (previous) {
    previous->isVisible_ = false;
    if (previous->view_) previous->view_->Hide();
  }
}

void Stage::GoBack() {
  Form* const opener = openers.empty() ? main : openers.back();
  if (opener && opener != current) opener->Show();
}

void Stage::Settle() {
  if (!isLeaving || !modals.empty() || hasEnded) return;
  isLeaving = false;
  GoBack();
}

void Stage::End() {
  hasEnded = true;
  for (Form* form : modals) form->EndModal();
  if (!current) return;
  current->isVisible_ = false;
  if (current->view_) current->view_->Hide();
  current = nullptr;
}

void Stage::Forget(Form& form) {
  if (current == &form) current = nullptr;
  if (main == &form) main = nullptr;
  std::erase(modals, &form);
  std::erase(openers, &form);
}

Form::Form(const LangText& title) : titleText_(title) {
  TheStage();  // made before any window of the run, and so destroyed after it
}

Form::~Form() {
  TakeDown();
  TheStage().Forget(*this);
}

void Form::SetTitle(const std::string& title) {
  title_ = title;
  if (view_) view_->TitleChanged();
}

void Form::Show() {
  Load();
  TheStage().Put(*this);
}

void Form::Leave() {
  if (TheStage().current != this) return;
  TheStage().isLeaving = true;
  if (TheStage().dispatches == 0) TheStage().Settle();
}

void Form::GoBack() {
  if (TheStage().current == this) TheStage().GoBack();
}

void Form::Unload() {
  if (!view_) return;
  if (OnUnload) OnUnload();
  Stage& stage = TheStage();
  if (this == stage.main) return EndProgram();
  if (isModal_) return EndModal();
  if (this == stage.current) stage.GoBack();
  std::erase(stage.openers, this);
  TakeDown();
}

void Form::ShowModal() {
  Load();
  Form* const owner = ActiveForm();
  TheStage().modals.push_back(this);
  isModal_ = true;
  isVisible_ = true;
  try {
    view_->RunModal(owner ? owner->view() : nullptr);
  } catch (...) {
    ModalEnded();
    throw;
  }
  ModalEnded();
}

void Form::ModalEnded() {
  isModal_ = false;
  std::erase(TheStage().modals, this);
  TakeDown();
}

void Form::EndModal() {
  if (isModal_) view_->EndModal();
}

void Form::Load() {
  if (view_) return;
  title_ = GetLangString(titleText_);
  for (Control* control : controls_) control->caption_ = GetLangString(control->captionText_);
  focus_ = nullptr;
  MoveFocusOn();
  view_ = std::make_unique<FormView>(*this);
  if (!OnLoad) return;
  try {
    OnLoad();
  } catch (...) {
    TakeDown();
    throw;
  }
}

void Form::TakeDown() {
  isVisible_ = false;
  view_.reset();
}

void Form::MoveFocusOn() {
  const auto here = std::find(controls_.begin(), controls_.end(), focus_);
  const auto takesFocus = [](const Control* control) { return control->TakesFocus(); };
  auto next = std::find_if(here, controls_.end(), takesFocus);
  if (next == controls_.end()) next = std::find_if(controls_.begin(), here, takesFocus);
  focus_ = next == controls_.end() || !takesFocus(*next) ? nullptr : *next;
  if (view_) view_->FocusChanged();
}

void Form::TranslateMenu() {
  for (MenuItem* item : menuItems_) item->Translate();
  if (view_) view_->MenuChanged();
}

Button* Form::defaultButton() const {
  for (Control* control : controls_) {
    if (control->kind() != Control::Kind::Button) continue;
    auto* button = static_cast<Button*>(control);
    if (button->IsDefault()) return button;
  }
  return nullptr;
}

Button* Form::cancelButton() const {
  for (Control* control : controls_) {
    if (control->kind() != Control::Kind::Button) continue;
    auto* button = static_cast<Button*>(control);
    if (button->IsCancel()) return button;
  }
  return nullptr;
}

bool Form::TakeSelections() {
  const bool wasVisible = isVisible_;
  for (Control* control : controls_) {
    if (!view_ || control->kind() != Control::Kind::ListBox) continue;
    auto* list = static_cast<ListBox*>(control);
    if (list->TakeSelection() && list->OnSelect) list->OnSelect();
  }
  return isVisible_ == wasVisible;
}

bool Form::KeyDown(KeyEvent key) {
  bool isHere = false;
  Dispatch([&] { isHere = TakeSelections(); });
  if (!isHere) return true;
  if (!OnKeyDown) return false;
  if (focus_ && focus_->kind() == Control::Kind::TextBox && IsForEditing(key)) return false;
  Dispatch([&] { OnKeyDown(key); });
  return key.isHandled;
}

void Form::CloseRequested() {
  const std::vector<Form*>& modals = TheStage().modals;
  if (!modals.empty() && modals.back() != this) return;
  Dispatch([this] {
    if (OnClose) return OnClose();
    Unload();
  });
}

void Form::FocusArrived(Control& control) {
  focus_ = &control;
}

void Dispatch(const std::function<void()>& handler) noexcept {
  Stage& stage = TheStage();
  ++stage.dispatches;
  try {
    handler();
  } catch (...) {
    TellFailure();
  }
  if (--stage.dispatches > 0) return;
  try {
    stage.Settle();
  } catch (...) {
    TellFailure();
  }
}

void TellFailure() noexcept {
  try {
    throw;
  } catch (const RuntimeError& error) {
    ReportSafely(error.cause(), error.file());
  } catch (const std::exception& error) {
    ReportSafely(CauseOf(error));
  } catch (...) {
    ReportSafely(RuntimeErrorTexts.Unexpected);
  }
}

void StartProgram(Form& main) {
  TheStage().main = &main;
  Dispatch([&] { main.Show(); });
  // Without its main window the program could not even be closed.
  if (!main.IsVisible()) EndProgram();
}

Form& MainForm() {
  return *TheStage().main;
}

void EndProgram() {
  TheStage().End();
  EndMessageLoop();
}

bool HasProgramEnded() {
  return TheStage().hasEnded;
}

Form* ActiveForm() {
  const Stage& stage = TheStage();
  return stage.modals.empty() ? stage.current : stage.modals.back();
}

std::vector<std::string> SharedAccessKeys(const Form& form) {
  std::vector<std::string> shared;
  std::vector<std::string> captions;
  for (const Control* control : form.controls()) {
    if (control->IsEnabled() && control->IsVisible()) captions.push_back(control->caption());
  }
  AddSharedKeys(shared, captions);
  AddSharedKeys(shared, form.menus());
  return shared;
}

}  // namespace Platform
