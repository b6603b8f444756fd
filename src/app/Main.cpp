// The program: it starts, handles events until its main window closes, and cleans up.
#include "app/Start.h"
#include "base/PerRun.h"
#include "ui/FormView.h"

int main() {
  StartPack();
  Platform::RunMessageLoop();
  RunObjects::End();
}
