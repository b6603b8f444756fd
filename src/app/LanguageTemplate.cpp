#include "app/LanguageTemplate.h"

#include <set>

#include "app/AppTexts.h"
#include "archive/ArchiveTexts.h"
#include "base/RuntimeErrorTexts.h"
#include "base/SharedTexts.h"
#include "base/SignatureTexts.h"
#include "base/SoundTexts.h"
#include "game/FileDialogTexts.h"
#include "game/GameTexts.h"
#include "internet/InternetTexts.h"
#include "language/LanguageTexts.h"
#include "packaging/PackagingTexts.h"
#include "records/RecordTexts.h"
#include "tracks/TrackTexts.h"
#include "update/UpdateTexts.h"
#include "vehicles/VehicleTexts.h"

std::vector<LangText> AllTexts() {
  std::vector<LangText> all;
  const auto add = [&all](const auto& table) {
    for (const LangText& text : TextsOf(table)) all.push_back(text);
  };
  // Dialogs and menu first, as the start puts them into an empty language file.
  add(FileDialogTexts);
  add(AppTexts);
  add(GameTexts);
  add(SharedTexts);
  add(LanguageTexts);
  add(VehicleTexts);
  add(TrackTexts);
  add(PackagingTexts);
  add(RecordTexts);
  add(InternetTexts);
  add(UpdateTexts);
  add(SignatureTexts);
  add(SoundTexts);
  add(ArchiveTexts);
  add(RuntimeErrorTexts);
  return all;
}

std::string LanguageTemplate() {
  std::string file;
  std::set<std::string> keys;
  for (const LangText& text : AllTexts()) {
    // Some tables share a key: it gets one line, as the last line of a key is the one that counts.
    if (text.key && keys.insert(text.key).second) {
      file.append(text.key).append("=").append(text.english).append("\r\n");
    }
  }
  return file;
}
