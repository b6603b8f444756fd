// What must hold for every input. The run that finds an input for which it does not ends with the
// stack, and keeps the input.
#pragma once

#include <cstdlib>
#include <iostream>

inline void Require(bool isSo) {
  if (!isSo) std::abort();
}

// As above, and says what was found and what should have been.
template <class T>
void RequireEqual(const T& found, const T& wanted) {
  if (found == wanted) return;
  std::cerr << "found:  ";
  PrintTo(found, &std::cerr);
  std::cerr << "\nwanted: ";
  PrintTo(wanted, &std::cerr);
  std::cerr << "\n";
  std::abort();
}
