#include "app/CheckWhat.h"

#include "app/AppTexts.h"
#include "app/Interface.h"

CheckWhat::CheckWhat()
    : Chooser(AppTexts.CheckWhatTitle, AppTexts.CheckWhatText,
              {{AppTexts.Vehicle, Interface::CheckVehicle},
               {AppTexts.Track, Interface::CheckTrack},
               {AppTexts.RecFile, Interface::CheckRecords}},
              MainWindow::ComesBack) {}
