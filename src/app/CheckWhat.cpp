#include "app/CheckWhat.h"

#include "app/AppTexts.h"
#include "app/Interface.h"
#include "base/SharedTexts.h"

CheckWhat::CheckWhat()
    : Chooser(AppTexts.CheckWhatTitle, AppTexts.CheckWhatText,
              {{SharedTexts.Vehicle, Interface::CheckVehicle},
               {SharedTexts.Track, Interface::CheckTrack},
               {AppTexts.RecFile, Interface::CheckRecords}},
              MainWindow::ComesBack) {}
