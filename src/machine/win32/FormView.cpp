#include "ui/FormView.h"

#include "machine/win32/FormWindow.h"
#include "ui/Forms.h"

namespace Platform {

FormView::FormView(Form& form) : native_(std::make_unique<Native>(form)) {}
FormView::~FormView() = default;

void FormView::Show(FormView* over) {
  native_->Show(over ? over->native_->window() : nullptr);
}
void FormView::Hide() {
  native_->Hide();
}

void FormView::RunModal(FormView* owner) {
  native_->RunModal(owner ? owner->native_->window() : nullptr);
}

void FormView::EndModal() {
  native_->EndModal();
}

void FormView::TitleChanged() {
  native_->ShowTitle();
  native_->LayOutAgain();
}
void FormView::MenuChanged() {
  native_->ShowMenu();
}
void FormView::FocusChanged() {
  native_->MoveFocus();
}

void FormView::CaptionChanged(Control& control) {
  native_->Of(control).ShowCaption();
  native_->LayOutAgain();
}

void FormView::StateChanged(Control& control) {
  native_->Of(control).ShowState();
  native_->LayOutAgain();
}

void FormView::TextChanged(TextBox& box) {
  native_->ShowText(box);
}
void FormView::AllSelected(TextBox& box) {
  native_->Of(box).SelectAll();
}

void FormView::RowsSet(ListBox& list) {
  native_->Of(list).ShowRows(native_->font());
}
void FormView::RowAdded(ListBox& list) {
  native_->Of(list).AddRow(list.row(list.count() - 1), native_->font());
}
void FormView::RowRemoved(ListBox& list, int index) {
  native_->Of(list).RemoveRow(index);
}
void FormView::SelectionChanged(ListBox& list) {
  native_->Of(list).ShowSelection();
}
int FormView::SelectedRow(const ListBox& list) const {
  return native_->Of(list).SelectedRow();
}

void FormView::StartTimer(Timer& timer) {
  native_->StartTimer(timer);
}
void FormView::StopTimer(Timer& timer) {
  native_->StopTimer(timer);
}

}  // namespace Platform
