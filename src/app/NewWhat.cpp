#include "app/NewWhat.h"

#include "app/AppTexts.h"
#include "app/Interface.h"

NewWhat::NewWhat()
    : Chooser(AppTexts.NewWhatTitle, AppTexts.NewWhatPrompt,
              {{AppTexts.Vehicle, Interface::NewVehicle}, {AppTexts.Track, Interface::NewTrack}},
              MainWindow::StaysHidden) {}
