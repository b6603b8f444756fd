#include "ui/Forms.h"

#include <algorithm>
#include <map>
#include <new>
#include <string_view>
#include <utility>

#include "base/RuntimeError.h"
#include "platform/InterruptedSave.h"
#include "text/FailureText.h"
#include "text/StringTable.h"
#include "ui/BoxView.h"
#include "ui/FormView.h"
#include "ui/MsgBox.h"
#include "ui/Stage.h"
#include "ui/Timer.h"

namespace Platform {

namespace {

// Tells the user that an action could not be finished.
void Report(const std::exception& error) {
  MsgBox(FailureText(error), GetLangString(RuntimeErrorTexts.Title), Icon::Critical);
}

// The same where the report itself fails: with nothing that could fail again.
void ReportInBrief(const LangText& cause) noexcept {
  try {
    const BoxOverStage box;
    ShowBox({cause.english, RuntimeErrorTexts.Title.english, Icon::Critical, Buttons::Ok}, true);
  } catch (...) {
    // Nothing is left that could tell of it; the program goes on.
  }
}

void ReportSafely(const std::exception& error) noexcept {
  try {
    Report(error);
  } catch (...) {
    ReportInBrief(CauseOf(error));
  }
}

// Tells what has become of files whose saves were cut off earlier, and were met just now.
void TellSaveNotes() {
  for (const SaveNote& note : TakeSaveNotes()) {
    MsgBox(SaveNoteText(note), GetLangString(RuntimeErrorTexts.PutBackTitle), Icon::Information);
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

Form::Form(const LangText& title, const Frame& frame)
    : titleText_(title), frame_(frame), life_(std::make_shared<char>()) {
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
  if (isModal_ || isArriving_) return;  // it is there, or is coming
  Stage& stage = TheStage();
  if (stage.IsCovered()) return stage.PutOff(*this, &Form::Show);
  // To see afterwards whether another window was shown while this one loaded.
  const Form* const before = stage.InUse();
  if (Load()) stage.Come(*this, before);
}

void Form::Leave() {
  if (isModal_) return EndModal();
  isArriving_ = false;
  if (TheStage().IsOn(*this)) TheStage().Leave();
}

void Form::GoBack() {
  if (isModal_) return EndModal();
  isArriving_ = false;
  Stage& stage = TheStage();
  if (!stage.IsOn(*this)) return;
  if (stage.IsCovered()) return stage.PutOff(*this, &Form::GoBack);
  stage.GoBack();
}

void Form::Unload() {
  if (isModal_) return EndModal();
  if (!view_ || isUnloading_) return;
  Stage& stage = TheStage();
  if (stage.IsOn(*this) && stage.IsCovered()) return stage.PutOff(*this, &Form::Unload);
  // A window that unloads itself while it loads is not shown.
  isArriving_ = false;
  if (!RunOnUnload()) return;
  if (this == stage.main()) return EndProgram();
  if (stage.IsOn(*this)) stage.GoBack();
  stage.ForgetOpener(*this);
  TakeDown();
}

// False if the handler has destroyed the window.
bool Form::RunOnUnload() {
  if (!OnUnload) return true;
  const auto handler = OnUnload;
  // A handler that unloads the window once more must not come back to itself.
  const std::weak_ptr<const void> life = life_;
  isUnloading_ = true;
  try {
    handler();
  } catch (...) {
    if (!life.expired()) isUnloading_ = false;
    throw;
  }
  if (life.expired()) return false;
  isUnloading_ = false;
  return true;
}

void Form::ShowModal() {
  if (isVisible_ || isArriving_) return;
  const std::weak_ptr<const void> life = life_;
  if (!Load()) {
    if (!life.expired()) Unload();
    return;
  }
  Stage& stage = TheStage();
  // OnLoad may have ended the program, and then nothing would end the loop.
  if (stage.HasEnded()) return TakeDown();
  // The window is worked by the user, even if a long step asks by it.
  const LongStep::Pause pause;
  const Form* const owner = stage.InUse();
  stage.ModalOpens(*this);
  isModal_ = true;
  isEnding_ = false;
  isVisible_ = true;
  try {
    view_->RunModal(owner ? owner->view() : nullptr);
  } catch (...) {
    if (!life.expired()) ModalEnded();
    throw;
  }
  if (!life.expired()) ModalEnded();
}

void Form::ModalEnded() {
  isModal_ = false;
  TakeDown();
  TheStage().ModalCloses(*this);
}

void Form::EndModal() {
  isArriving_ = false;
  if (!isModal_ || isEnding_ || isUnloading_) return;
  if (!RunOnUnload() || !isModal_) return;
  isEnding_ = true;
  view_->EndModal();
}

// False if the window is not to be shown any more: while it loaded it was left, unloaded or
// destroyed.
bool Form::Load() {
  if (view_) return true;
  title_ = GetLangString(titleText_);
  for (Control* control : controls_) control->caption_ = GetLangString(control->captionText_);
  focus_ = nullptr;
  MoveFocusOn();
  view_ = std::make_unique<FormView>(*this);
  if (!OnLoad) return true;
  const auto handler = OnLoad;
  const std::weak_ptr<const void> life = life_;
  isArriving_ = true;
  try {
    handler();
  } catch (...) {
    if (life.expired()) throw;
    isArriving_ = false;
    if (!isVisible_) TakeDown();
    throw;
  }
  return !life.expired() && std::exchange(isArriving_, false);
}

void Form::TakeDown() {
  isVisible_ = false;
  // Before the view goes, which is what stops them.
  for (Timer* timer : timers_) timer->Stop();
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
  const std::weak_ptr<const void> life = life_;
  const bool wasVisible = isVisible_;
  const std::vector<Control*> controls = controls_;
  for (Control* control : controls) {
    if (!view_ || control->kind() != Control::Kind::ListBox) continue;
    auto* list = static_cast<ListBox*>(control);
    if (!list->TakeSelection() || !list->OnSelect) continue;
    const auto handler = list->OnSelect;
    handler();
    if (life.expired()) return false;
  }
  return isVisible_ == wasVisible;
}

bool Form::TakesInput() const {
  return TheStage().LetsIn(*this);
}

bool Form::KeyDown(KeyEvent key) {
  if (!TakesInput()) return false;
  bool isHere = false;
  Dispatch([&] { isHere = TakeSelections(); });
  // The list that told of its selection has led elsewhere.
  if (!isHere) return true;
  if (!OnKeyDown) return false;
  if (focus_ && focus_->kind() == Control::Kind::TextBox && IsForEditing(key)) return false;
  const Form* const before = this;
  Dispatch([handler = OnKeyDown, &key] { handler(key); });
  // To the window that has gone the key means nothing any more, and the next one must not get it.
  return key.isHandled || TheStage().InUse() != before;
}

void Form::CloseRequested() {
  if (!TakesInput()) return;
  Dispatch([this] {
    if (!OnClose) return Unload();
    const auto handler = OnClose;
    handler();
  });
}

void Form::FocusArrived(Control& control) {
  focus_ = &control;
}

void Dispatch(std::function<void()> handler) noexcept {
  // Ours alone: the one that was given may go with its window while this runs.
  const std::function<void()> own = std::move(handler);
  TheStage().EventBegins();
  try {
    own();
  } catch (...) {
    TellFailure();
  }
  TheStage().EventEnds();
  // Within another event it would come in the middle of its work.
  if (TheStage().IsHandlingEvents()) return;
  try {
    TellSaveNotes();
  } catch (...) {
    TellFailure();
  }
}

void TellFailure() noexcept {
  try {
    throw;
  } catch (const std::exception& error) {
    ReportSafely(error);
  } catch (...) {
    ReportSafely(std::exception());
  }
}

void StartProgram(Form& main) {
  TheStage().SetMain(main);
  Dispatch([&] { main.Show(); });
  // Without a window the program could not even be closed.
  if (!TheStage().InUse()) EndProgram();
}

Form& MainForm() {
  return *TheStage().main();
}

void EndProgram() {
  if (HasProgramEnded()) return;
  TheStage().End();
  EndMessageLoop();
}

bool HasProgramEnded() {
  return TheStage().HasEnded();
}

Form* ActiveForm() {
  return TheStage().InUse();
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
