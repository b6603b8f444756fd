// This program's own table of imported functions, which tests rewrite: the code under test is then
// what ships, and calls what the test wants.
#pragma once

namespace RealMachine {

// Has another function called wherever the program calls the imported one of that name. Returns the
// one that was called until now; null if the program imports none of that name.
void* ReplaceImport(const char* name, void* function);

}  // namespace RealMachine
