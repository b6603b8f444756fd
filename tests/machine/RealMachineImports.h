// The tables of imported functions, of this program and of its libraries, which tests rewrite: the
// code under test is then what ships, and calls what the test wants.
#pragma once

namespace RealMachine {

// Has another function called wherever a module calls the imported one of that name. Returns the
// one that was called until now; null if it imports none of that name.
//   module  where a library was loaded, or null for the program.
void* ReplaceImport(const char* name, void* function, void* module = nullptr);

}  // namespace RealMachine
