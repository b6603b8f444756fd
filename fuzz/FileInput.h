// An input that is a file of the game and the circumstances in which it is read.
#pragma once

#include <cstdint>
#include <string>

#include "machine/simulated/Machine.h"

// Puts the input as a file onto the machine. Its first byte says how the user writes numbers and
// how large the blocks are in which the file is read; "0" is a usual value.
// Returns the bytes of the file.
inline std::string PutFileInput(Simulated::Machine& machine, const std::string& path,
                                const uint8_t* data, size_t size) {
  const uint8_t circumstances = size > 0 ? data[0] : 0;
  if (circumstances & 1) machine.locale.SetSeparators(",", ".");
  machine.files.LimitReads(1U + (circumstances >> 1));
  std::string bytes;
  if (size > 1) bytes.assign(reinterpret_cast<const char*>(data) + 1, size - 1);
  machine.files.Put(path, bytes);
  return bytes;
}
