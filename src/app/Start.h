// The start of a run of the program, the same for the user and for the tests.
#pragma once

// Loads and shows the main window.
void StartPack();
