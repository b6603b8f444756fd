#include "app/PackageWhat.h"

#include "app/AppTexts.h"
#include "app/Interface.h"
#include "base/SharedTexts.h"

PackageWhat::PackageWhat()
    : Chooser(AppTexts.PackageWhatTitle, AppTexts.PackageWhatPrompt,
              {{SharedTexts.Vehicle, Interface::TellNotAvailable},
               {SharedTexts.Track, Interface::TellNotAvailable}},
              MainWindow::StaysHidden) {}
