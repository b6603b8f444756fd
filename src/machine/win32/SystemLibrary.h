// Functions of those libraries of Windows that the first window does not need. Each library is
// loaded when one of its functions is first called, so that the program opens sooner, and from the
// system's own folder alone.
//
// What a program names in its import table is looked for beside the program first: a file of that
// name there, in a folder of downloads for instance, would run with the user's rights. Only the
// libraries that the system has in every process are safe there, and comctl32, to which the
// manifest leads. Import libraries for delayed loading would look beside the program too, and where
// a library is missing they raise an exception of the system that C++ cannot catch; here it is a
// RuntimeError.
#pragma once

#include "machine/win32/System.h"

namespace Platform {

// The address of a function.
//   library   the file name of the library, without a folder.
// Fails with RuntimeError DeviceError, cause SystemLibrary, if the system has no such library or
// the library no such function.
void* FindSystemFunction(const char* library, const char* name);

// One function, called as the one of that name in the system's headers, whose type it has:
//
//   SystemFunction<decltype(::VerQueryValueW)> VerQueryValueW("version.dll", "VerQueryValueW");
//
// Within a namespace of ours it hides the system's declaration, so that no call can mean the
// imported function by mistake. A call fails as FindSystemFunction does.
template <class Signature>
class SystemFunction;

template <class Result, class... Parameters>
class SystemFunction<Result(Parameters...)> {
 public:
  constexpr SystemFunction(const char* library, const char* name)
      : library_(library), name_(name) {}

  Result operator()(Parameters... parameters) {
    if (!function_) function_ = reinterpret_cast<Function>(FindSystemFunction(library_, name_));
    return function_(parameters...);
  }

 private:
  // On x86-64 the system has one way of calling functions, the compiler's own.
  using Function = Result (*)(Parameters...);

  const char* library_;
  const char* name_;
  Function function_ = nullptr;
};

}  // namespace Platform
