#include "records/HighScores.h"

#include <utility>

#include "base/PerRun.h"
#include "records/RecordFile.h"
#include "ui/Messages.h"

HighScores::HighScores() : Form(RecordTexts.RecordViewerTitle, {.isResizable = true}) {
  Tracks.OnSelect = [this] { Tracks_Click(); };
  Del.OnClick = [this] { Del_Click(); };
  Reset.OnClick = [this] { Reset_Click(); };
  Ccl.OnClick = [this] { Ccl_Click(); };
}

void HighScores::ShowRecords(std::vector<std::string> records) {
  records_ = std::move(records);
  std::vector<std::string> tracks;
  for (const std::string& record : records_) {
    if (auto track = RecordFile::TrackOf(record)) tracks.push_back(std::move(*track));
  }
  Tracks.SetRows(std::move(tracks), 0);
  // Selecting by the program is no event, so the time must be set by hand.
  ShowSelectedTime();
  Show();
}

std::string HighScores::RecordTimeText(int index) const {
  return HasRecord(index) ? RecordFile::TimeTextOf(records_[static_cast<size_t>(index)]) : "";
}

void HighScores::DeleteRecord(int index) {
  if (!HasRecord(index)) return;
  if (!Messages::Ask(RecordTexts.DeleteRecordWarningText, RecordTexts.DeleteRecordWarningTitle,
                     Platform::Buttons::YesNoDefaultNo)) {
    return;
  }
  std::vector<std::string> remaining = records_;
  remaining.erase(remaining.begin() + index);
  // The file first: if it cannot be written, the window still shows what stands in it.
  RecordFile::Write(remaining);
  records_ = std::move(remaining);
  Tracks.Remove(index);
  Tracks.Focus();
}

void HighScores::ClearRecords() {
  if (!Messages::Ask(RecordTexts.ClearRecordsWarningText, RecordTexts.ClearRecordsWarningTitle,
                     Platform::Buttons::YesNoDefaultNo)) {
    return;
  }
  RecordFile::Write({});
  records_.clear();
  Tracks.Clear();
  ShowSelectedTime();
  Tracks.Focus();
}

void HighScores::Tracks_Click() {
  ShowSelectedTime();
}

void HighScores::Del_Click() {
  DeleteRecord(Tracks.selected());
}

void HighScores::Reset_Click() {
  ClearRecords();
}

void HighScores::Ccl_Click() {
  Unload();
}

bool HighScores::HasRecord(int index) const {
  return index >= 0 && static_cast<size_t>(index) < records_.size();
}

void HighScores::ShowSelectedTime() {
  Score.SetText(RecordTimeText(Tracks.selected()));
}

void ShowRecordViewer() {
  // Read before the window is shown, so that a failure is told over the window in use.
  std::vector<std::string> records = RecordFile::Read();
  if (records.empty()) {
    Messages::Show(RecordTexts.NoRecordsText, RecordTexts.NoRecordsTitle,
                   Platform::Icon::Information);
    return;
  }
  PerRun<HighScores>().ShowRecords(std::move(records));
}
