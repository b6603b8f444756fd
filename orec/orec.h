/* orec.dll records sound from an input device of Windows into a WAV file: PCM of 16 bits. For
 * programs in any language: nine plain functions, whole numbers of 32 bits, and texts in the system
 * code page that end with a NUL. It needs nothing but Windows 10 or later.
 *
 *   ORec_Init();
 *   take = ORec_OpenFile("C:\\take.wav", 44100, 2, ORec_DefaultDevice);
 *   ORec_StartRecording(take);    ... sound goes into the file, whatever the program is doing ...
 *   ORec_StopRecording(take);
 *   ORec_CloseFile(take);
 *   ORec_Free();
 *
 * Any function may be called at any time, in any order, from any thread, with anything: what makes
 * no sense does nothing and returns a failure. A program that looks at no result loses no more than
 * the sound that could not be had.
 *
 * The file is a whole WAV file at any moment: its sizes follow what was written, twenty times a
 * second, so that whatever ends the program leaves all but the last moment of the take. */
#pragma once

#include <stdint.h>

#ifdef _WIN32
#define OREC_CALL __stdcall
#else
#define OREC_CALL
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* The input device that the user has made the default one in Windows. */
#define ORec_DefaultDevice (-1)

/* What a function returns that could not do what it was asked for. */
enum ORec_Failure {
  ORec_NotInitialised = -1, /* ORec_Init was not called, or ORec_Free was */
  ORec_BadArgument = -2,    /* no such handle; a path, rate or number of channels that cannot be */
  ORec_NoDevice = -3,       /* there is no such device, or it has gone */
  /* The device is there but is refused without a reason, in mono and in stereo. That is how Windows
   * keeps the microphone from desktop programs: Settings, Privacy, Microphone. */
  ORec_DeviceForbidden = -4,
  ORec_DeviceInUse = -5, /* another program has the device for itself */
  ORec_DeviceFailed =
      -6,              /* it does not answer in time, gives no sound any more, or fails otherwise */
  ORec_FileFailed = -7 /* the file cannot be opened or written: a disk that is full, no right */
};

/* Makes the library ready. Each call wants one of ORec_Free later. Returns 0. */
int32_t OREC_CALL ORec_Init(void);

/* The number of input devices; 0 if there is none, if the system does not answer within seconds, or
 * before ORec_Init. */
int32_t OREC_CALL ORec_GetInputDeviceCount(void);

/* Writes the name of a device, cut where the buffer ends but never within a character, and a NUL.
 *   device  0 to the count less 1. Each of these has a name, and no two have the same: what the
 *           system leaves nameless gets one, and a name that comes again gets a number, "USB (2)".
 *           ORec_DefaultDevice has none.
 *   buffer  nothing is written if it is null.
 *   size    of the buffer in bytes, that of the NUL included.
 * Returns the length of what was written, without its NUL; 0, and an empty text, if there is no
 * such device. */
int32_t OREC_CALL ORec_GetInputDeviceName(int32_t device, char* buffer, int32_t size);

/* Opens the device, and then makes the file, without any sound so far; one that is there is
 * overwritten. If the device cannot be had no file is touched. Several may be open at a time.
 *   path      of the file. Others may read it meanwhile.
 *   rate      samples a second: 8000 to 192000.
 *   channels  1 or 2. A device that has only the other is recorded all the same, and converted.
 *   device    as for ORec_GetInputDeviceName, or ORec_DefaultDevice.
 * Returns a handle for the functions below, greater than 0 and never used again; or a failure. */
int32_t OREC_CALL ORec_OpenFile(const char* path, int32_t rate, int32_t channels, int32_t device);

/* Begins to write what the device hears to the end of the file. After ORec_StopRecording it may be
 * called again, and goes on there. Returns 0, also if it was recording already; or a failure, after
 * which the file has been closed as it is. */
int32_t OREC_CALL ORec_StartRecording(int32_t handle);

/* Ends recording; all that was heard until now is in the file when it returns, which takes two
 * seconds at most. A device that does not answer is then left to itself.
 * Returns 0, also if it was not recording; or the failure that has ended the recording before. */
int32_t OREC_CALL ORec_StopRecording(int32_t handle);

/* 1 while it records; 0 if it does not, also because the device has gone without a word: it has
 * then given no sound for three seconds, and the file has been closed as far as it got. */
int32_t OREC_CALL ORec_IsRecording(int32_t handle);

/* Ends recording, as ORec_StopRecording does, and closes the file and the device. The handle is not
 * valid any more. Returns what ORec_StopRecording does. */
int32_t OREC_CALL ORec_CloseFile(int32_t handle);

/* Ends what the ORec_Init before has begun: with the last one whatever is open is closed. Returns
 * 0, or ORec_NotInitialised. */
int32_t OREC_CALL ORec_Free(void);

#ifdef __cplusplus
}
#endif
