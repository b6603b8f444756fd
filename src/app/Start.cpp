#include "app/Start.h"

#include "app/SK2UtilityPack.h"
#include "base/PerRun.h"
#include "ui/Forms.h"

void StartPack() {
  Platform::StartProgram(PerRun<SK2UtilityPack>());
}
