#include "tracks/TrackParts.h"

#include "base/RuntimeError.h"
#include "platform/Numbers.h"
#include "text/StringTable.h"
#include "tracks/TrackFormat.h"
#include "tracks/TrackInWork.h"
#include "tracks/TrackManager.h"
#include "ui/Messages.h"

namespace {

template <class Names>
void Fill(Platform::ListBox& list, const Names& names) {
  std::vector<std::string> rows;
  rows.reserve(names.size());
  for (const LangText& name : names) rows.push_back(GetLangString(name));
  list.SetRows(std::move(rows), 0);
}

void Refuse(const std::string& text) {
  Messages::Show(text, SharedTexts.Error, Platform::Icon::Critical);
}

}  // namespace

TrackParts::TrackParts() : Form(TrackTexts.NewPartTitle, {.isResizable = true}) {
  OnLoad = [this] { Form_Load(); };
  Submit.OnClick = [this] { Submit_Click(); };
  Ccl.OnClick = [this] { Ccl_Click(); };
}

void TrackParts::Form_Load() {
  // The rows are looked up anew each time, and the place of a row is its code in the file.
  PartLength.SetText("");
  Fill(TrackSurface, TrackFormat::Surfaces);
  Fill(TrackCurve, TrackFormat::Curves);
}

void TrackParts::Submit_Click() {
  const std::optional<int32_t> length = TakeLength();
  if (!length) return;
  const int curve = TrackCurve.selected();
  const int surface = TrackSurface.selected();
  // Another program can take a selection away: the user is led to the list that needs one.
  if (surface < 0) return TrackSurface.Focus();
  if (curve < 0) return TrackCurve.Focus();
  const std::string line = TrackCurve.row(curve) + " " + GetLangString(TrackTexts.SectionOn) + " " +
                           TrackSurface.row(surface) + " " + GetLangString(TrackTexts.For) + " " +
                           std::to_string(*length) + " " + GetLangString(TrackTexts.Units) + ".";
  TrackManager::AppendTrackPart(curve, surface, *length, TheTrack().TrackText);
  // The window is kept for the next part, which is to begin at its first field with nothing left.
  TrackCurve.Focus();
  TrackCurve.Select(0);
  TrackSurface.Select(0);
  PartLength.SetText("");
  // Given up first: the editor is back whatever becomes of the line.
  Leave();
  if (OnAdded) OnAdded(line);
}

void TrackParts::Ccl_Click() {
  GoBack();
}

// The length as typed, or nothing if it is refused: the user has then been told. A length beyond 32
// bits fails with RuntimeError Overflow. Either way the user is back at the length to mend it.
std::optional<int32_t> TrackParts::TakeLength() {
  if (!Platform::ParseNumber(PartLength.text())) {
    Refuse(GetLangString(TrackTexts.LengthNotNumeric));
    ReturnToLength();
    return std::nullopt;
  }
  int32_t length = 0;
  try {
    length = Platform::ParseInt32(PartLength.text());
  } catch (const RuntimeError&) {
    ReturnToLength();
    throw;
  }
  if (length < TrackFormat::ShortestPart) {
    Refuse(GetLangString(TrackTexts.LengthTooLow) + " " +
           std::to_string(TrackFormat::ShortestPart) + " " + GetLangString(TrackTexts.OrMore) +
           ".");
    ReturnToLength();
    return std::nullopt;
  }
  return length;
}

void TrackParts::ReturnToLength() {
  PartLength.Focus();
  PartLength.SelectAll();
}
