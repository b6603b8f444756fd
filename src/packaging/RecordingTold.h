// What the recorder tells when it cannot go on.
#pragma once

#include "platform/Recorder.h"

// Why nothing is recorded, or no more. There must be a failure.
void TellRecordingFailure(Platform::RecordingFailure failure);

// That the packager goes no further without a description.
void TellPackagerAborted();
