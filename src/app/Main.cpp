// The program: it starts, handles events until its main window closes, and cleans up.
#include "app/Start.h"
#include "base/PerRun.h"
#include "ui/FormView.h"

int main() {
  StartPack();
  Platform::RunMessageLoop();
  // By hand, so that objects go in the order that they need; static ones go in one of their own.
  RunObjects::End();
}
