#include "app/Start.h"

#include "app/SK2UtilityPack.h"
#include "base/PerRun.h"
#include "platform/Translation.h"
#include "text/StringTable.h"

void StartPack() {
  Platform::SetTranslator([](const LangText& text) { return GetLangString(text); });
  Platform::StartProgram(PerRun<SK2UtilityPack>());
}
