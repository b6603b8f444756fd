#include "app/NewWhat.h"

#include "app/AppTexts.h"
#include "app/Interface.h"
#include "base/SharedTexts.h"

NewWhat::NewWhat()
    : Chooser(AppTexts.NewWhatTitle, AppTexts.NewWhatPrompt,
              {{SharedTexts.Vehicle, Interface::TellNotAvailable},
               {SharedTexts.Track, Interface::NewTrack}},
              MainWindow::StaysHidden) {}
