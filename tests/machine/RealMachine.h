// The parts of the real machine's side of TestMachine.h that know of each other.
#pragma once

#include <string>

#include "machine/win32/System.h"

namespace RealMachine {

// Handles all messages that wait, as the program does, until there are none.
void Pump();
// Brings the window that can be used back to the front if the program has no active window: what
// another program does on the same screen, at whatever moment, is not what a test is about.
void StayInFront();
// Takes from the queue what a test left in it.
void EmptyQueue();

// Puts back, at the end of a test, what each part changed.
void PutBackFiles();
void PutBackSound();
void PutBackMicrophones();
void PutBackSeparators();
void PutBackRegistry();
void ForgetModalWindows();
void PutBackDocuments();
void PutBackWeb();
void PutBackClipboard();
void PutBackRoom();

// Lets a file be written that is open already, but not be made shorter, until the test ends. False
// if this machine cannot do so.
bool RefuseShortening(const std::string& path);

// The file with all that comes out of the speakers, for E2e::Recording; empty if nobody records it.
std::string& SpeakersFile();

// For main: puts somebody between the recording library and the system, who lets it see the devices
// of the tests. Before the library is used.
void WatchMicrophones();

// For main: if this program was started to open a document of the tests, notes what it was given,
// and returns true.
bool WasStartedToOpen(int count, char** arguments);

// The same if it was started to make a save that is cut off.
bool WasStartedToSave(int count, char** arguments);

// The same if it was started to record until it is ended, or to tell where it finds its library.
bool WasStartedToRecord(int count, char** arguments);

}  // namespace RealMachine
