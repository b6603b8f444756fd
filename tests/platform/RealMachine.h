// The parts of the real machine's side of TestMachine.h that know of each other.
#pragma once

#include "platform/win32/System.h"

namespace RealMachine {

// Handles all messages that wait, as the program does, until there are none.
void Pump();
// Takes from the queue what a test left in it.
void EmptyQueue();

// Puts back, at the end of a test, what each part changed.
void PutBackFiles();
void PutBackSeparators();
void PutBackRegistry();
void ForgetModalWindows();

}  // namespace RealMachine
