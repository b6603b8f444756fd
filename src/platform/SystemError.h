// The system's own codes for what went wrong. Every machine gives the same ones, so what they mean
// for the program is decided once, for all machines.
#pragma once

#include <cstdint>

namespace Platform {

// Any code may come; those that the program tells apart have a name.
enum class SystemError : uint32_t {
  None = 0,
  FileNotFound = 2,
  PathNotFound = 3,
  AccessDenied = 5,
  NotEnoughMemory = 8,
  OutOfMemory = 14,
  InvalidDrive = 15,
  WriteProtect = 19,
  NotReady = 21,
  SharingViolation = 32,
  LockViolation = 33,
  HandleDiskFull = 39,
  BadNetPath = 53,
  NetworkAccessDenied = 65,
  BadNetName = 67,
  FileExists = 80,
  DiskFull = 112,
  InvalidName = 123,
  FolderNotEmpty = 145,
  BadPathName = 161,
  AlreadyExists = 183,
  NameTooLong = 206,
  NotADirectory = 267,
  DeletePending = 303,
  NoMedia = 1112,
  DeviceFailed = 1117,
  UserMappedFile = 1224,
  NotEnoughQuota = 1816,
};

// True if another program holds the file that was to be opened, so that it may work a moment later.
// Not for want of a right, which no waiting mends.
bool IsInUse(SystemError error);

// The same where the file was to be replaced, or only asked for or marked: that too is refused as
// "access denied" while someone has it open.
bool IsInUseForReplacing(SystemError error);

// True if there is nothing under the name.
bool IsMissing(SystemError error);

}  // namespace Platform
