// The one exception of the program: a failure that no contract names and that ends the user's
// action.
#pragma once

#include <cstdint>
#include <exception>
#include <stdexcept>
#include <string>

#include "base/RuntimeErrorTexts.h"

// What the system said of a failure: shown as the last line of the box, for whoever helps the user.
struct SystemCause {
  LangText step{};  // what was being done; without an English text the failure is not the system's
  uint32_t code = 0;  // the system's own number for what went wrong
};

class RuntimeError : public std::runtime_error {
 public:
  // The classic run-time error numbers; some rules of the pack tell failures apart by them.
  enum Number {
    InvalidCall = 5,
    Overflow = 6,
    OutOfMemory = 7,
    SubscriptOutOfRange = 9,
    TypeMismatch = 13,
    FileNotFound = 53,
    DeviceError = 57,
    FileAlreadyExists = 58,
    DiskFull = 61,
    PermissionDenied = 70,
    DiskNotReady = 71,
    PathFileAccess = 75,
    PathNotFound = 76,
  };

  // A failure with the usual cause of its number.
  //   file   the full path of the file concerned, shown to the user; empty if there is none.
  explicit RuntimeError(Number number, const std::string& file = "",
                        const SystemCause& system = {});

  // A failure whose cause deserves words of its own.
  RuntimeError(Number number, const LangText& cause, const std::string& file = "",
               const SystemCause& system = {});

  // A failure in which the file may have been damaged: what it held before is in the copy.
  static RuntimeError WithCopy(const RuntimeError& failure, const std::string& copy);

  Number number() const { return number_; }
  // What happened, to be looked up in the user's language.
  const LangText& cause() const { return cause_; }
  const std::string& file() const { return file_; }
  const SystemCause& system() const { return system_; }
  // The full path of what is left of a damaged file; empty if none was damaged.
  const std::string& copy() const { return copy_; }

 private:
  Number number_;
  LangText cause_;
  std::string file_;
  SystemCause system_;
  std::string copy_;
};

// What happened, for any exception: words of its own for a RuntimeError and for memory that has run
// out, otherwise that it was not expected.
const LangText& CauseOf(const std::exception& error);
