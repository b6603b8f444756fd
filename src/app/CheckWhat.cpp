#include "app/CheckWhat.h"

#include "app/AppTexts.h"
#include "app/Interface.h"
#include "base/SharedTexts.h"

CheckWhat::CheckWhat()
    : Chooser(AppTexts.CheckWhatTitle, AppTexts.CheckWhatText,
              {{SharedTexts.Vehicle, Interface::TellNotAvailable},
               {SharedTexts.Track, Interface::TellNotAvailable},
               {AppTexts.RecFile, Interface::CheckRecords}},
              MainWindow::ComesBack) {}
