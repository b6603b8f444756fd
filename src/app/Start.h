// The start of a run of the program, the same for the user and for the tests.
#pragma once

// Hands the string table to the windows, then loads and shows the main window.
void StartPack();
