#include "tests/machine/RealMachineImports.h"

#include <cstring>
#include <utility>

#include "machine/win32/System.h"

namespace RealMachine {

namespace {

// Puts a function into a place of the table. Returns the one that stood there.
void* Exchange(IMAGE_THUNK_DATA& entry, void* function) {
  auto** const place = reinterpret_cast<void**>(&entry.u1.Function);
  DWORD protection = 0;
  VirtualProtect(place, sizeof *place, PAGE_READWRITE, &protection);
  void* const before = std::exchange(*place, function);
  VirtualProtect(place, sizeof *place, protection, &protection);
  return before;
}

}  // namespace

void* ReplaceImport(const char* wanted, void* function, void* module) {
  auto* const base = static_cast<BYTE*>(module ? module : GetModuleHandleA(nullptr));
  const auto& header = *reinterpret_cast<IMAGE_NT_HEADERS*>(
      base + reinterpret_cast<IMAGE_DOS_HEADER*>(base)->e_lfanew);
  const auto& directory = header.OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
  auto* library = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(base + directory.VirtualAddress);
  void* before = nullptr;
  for (; library->Name; ++library) {
    const auto* names = reinterpret_cast<IMAGE_THUNK_DATA*>(base + library->OriginalFirstThunk);
    auto* functions = reinterpret_cast<IMAGE_THUNK_DATA*>(base + library->FirstThunk);
    for (; names->u1.AddressOfData; ++names, ++functions) {
      if (IMAGE_SNAP_BY_ORDINAL(names->u1.Ordinal)) continue;
      const char* name = reinterpret_cast<char*>(
          reinterpret_cast<IMAGE_IMPORT_BY_NAME*>(base + names->u1.AddressOfData)->Name);
      if (std::strcmp(name, wanted) == 0) before = Exchange(*functions, function);
    }
  }
  return before;
}

}  // namespace RealMachine
