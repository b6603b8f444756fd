#include "app/PackageWhat.h"

#include "app/AppTexts.h"
#include "app/Interface.h"

PackageWhat::PackageWhat()
    : Chooser(AppTexts.PackageWhatTitle, AppTexts.PackageWhatPrompt,
              {{AppTexts.Vehicle, Interface::PackageVehicle},
               {AppTexts.Track, Interface::PackageTrack}},
              MainWindow::StaysHidden) {}
