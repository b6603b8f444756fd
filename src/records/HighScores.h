// The window in which a player hears the best time of each track, and deletes records.
#pragma once

#include <string>
#include <vector>

#include "base/SharedTexts.h"
#include "records/RecordTexts.h"
#include "ui/Forms.h"

class HighScores final : public Platform::Form {
 public:
  HighScores();

  // Shows the window with records in place of those it had. The first track is selected, and its
  // time shown.
  void ShowRecords(std::vector<std::string> records);

  // The time of a record in words, as RecordFile::TimeTextOf gives it; empty if the index, counted
  // from 0 in the records, is that of no record.
  std::string RecordTimeText(int index) const;

  // Deletes the record with an index, and the row in the same place, once the user has confirmed
  // it. An index that is that of no record does nothing and asks nothing. Fails as
  // RecordFile::Write does; the file, the records and the window are then as they were.
  void DeleteRecord(int index);

  // Deletes all records, once the user has confirmed it. Fails as DeleteRecord does.
  void ClearRecords();

 private:
  Platform::ListBox Tracks{*this, {.label = RecordTexts.TracksPrompt}};
  Platform::TextBox Score{*this, {.label = RecordTexts.TimePrompt, .isReadOnly = true}};
  Platform::Button Del{*this, {.text = RecordTexts.DeleteRecordButton}};
  Platform::Button Reset{*this, {.text = RecordTexts.ResetButton}};
  // Also what Enter presses in the list and in the time: the other two destroy.
  Platform::Button Ccl{*this, {.text = SharedTexts.CclButton, .isDefault = true, .isCancel = true}};

  void Tracks_Click();  // the time follows the selected track
  void Del_Click();
  void Reset_Click();
  void Ccl_Click();  // every change is on disk already

  bool HasRecord(int index) const;
  void ShowSelectedTime();

  // A record without "=" is kept but has no row, so that rows behind it stand for the record before
  // the one they name. Times and deletions go by position all the same, as they always have.
  std::vector<std::string> records_;
};

// Reads the record file and opens the window, or tells that there are no records, which is also
// what a missing file means. Fails as RecordFile::Read does; the window in use is then still there.
void ShowRecordViewer();
