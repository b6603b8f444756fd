// The input devices of the system, call by call. What is made of the calls, and what is done when
// they fail or never return, is Recording's business.
//
// Implemented by win32/Input.cpp, and by the tests for devices that no machine can be made to have.
#pragma once

#include <chrono>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "orec/Format.h"

namespace ORec {

// The system's own codes. Any may come; those that are told apart have a name.
enum class Code : unsigned {
  None = 0,
  Unspecified = 1,
  BadDevice = 2,
  InUse = 4,
  NoDriver = 6,
};

// Any of these may take its time, or for ever where a device has gone.

int CountInputs();
// In the system code page; empty if the system does not tell.
std::string NameOfInput(int number);

// A device that is open, with buffers that it fills in the order in which it was given them. One
// thread uses it; Wake alone is for others.
class Input {
 public:
  struct Buffers {
    size_t count;
    size_t size;  // of each, in bytes
  };
  //   number  -1 is the user's default device.
  static Code Open(int number, const Format& format, Buffers buffers,
                   std::unique_ptr<Input>& opened);
  // Closes it.
  ~Input();
  Input(const Input&) = delete;
  Input& operator=(const Input&) = delete;

  // Gives the device a buffer to fill.
  Code Give(size_t buffer);
  // Takes back a buffer that was given: what it holds, maybe nothing. Nothing at all as long as the
  // device has it.
  std::optional<std::string_view> Take(size_t buffer);

  Code Start();
  // The buffer that is being filled comes back.
  Code Stop();
  // All buffers come back.
  Code Reset();

  // Returns when a buffer has come back, after Wake, or after that time at the latest; now and then
  // for no reason.
  void Wait(std::chrono::milliseconds atMost);
  // Lets this Wait, or the next one, return.
  void Wake();

  struct Native;

 private:
  Input();
  std::unique_ptr<Native> native_;
};

}  // namespace ORec
