#include "e2e/driver/FileCallTrap.h"

#include <psapi.h>

#include <algorithm>
#include <climits>
#include <iterator>
#include <stdexcept>
#include <string_view>

namespace E2e {
namespace {

constexpr std::string_view FileFunctions[] = {
    "CreateFileA",        "GetFileType",          "ReadFile",
    "WriteFile",          "GetFileSizeEx",        "SetFilePointerEx",
    "SetEndOfFile",       "FlushFileBuffers",     "SetFileTime",
    "CloseHandle",        "GetFileAttributesExA", "SetFileInformationByHandle",
    "SetFileAttributesA", "DeleteFileA",          "MoveFileExA",
    "FindFirstFileW",     "FindNextFileW",        "CreateDirectoryA"};

constexpr size_t RoomSize = 4096;

void Require(BOOL wentWell, const char* what) {
  if (!wentWell) throw std::runtime_error(std::string("cannot ") + what);
}

template <class Part>
Part Read(HANDLE process, DWORD64 address) {
  Part part{};
  Require(ReadProcessMemory(process, reinterpret_cast<void*>(address), &part, sizeof part, nullptr),
          "read the program's memory");
  return part;
}

void Write(HANDLE process, DWORD64 address, const void* bytes, size_t size) {
  Require(WriteProcessMemory(process, reinterpret_cast<void*>(address), bytes, size, nullptr),
          "write the program's memory");
}

// The address at which the program itself is loaded.
DWORD64 BaseOf(HANDLE process) {
  HMODULE first = nullptr;
  DWORD size = 0;
  Require(K32EnumProcessModules(process, &first, sizeof first, &size), "list the modules");
  return reinterpret_cast<DWORD64>(first);
}

std::string NameAt(HANDLE process, DWORD64 address) {
  std::string name;
  while (const char c = Read<char>(process, address++)) name += c;
  return name;
}

bool IsFileFunction(const std::string& name) {
  return std::find(std::begin(FileFunctions), std::end(FileFunctions), name) !=
         std::end(FileFunctions);
}

// The places in the table of imported functions where those of files stand.
std::vector<DWORD64> SlotsOf(HANDLE process) {
  const DWORD64 base = BaseOf(process);
  const auto start = Read<IMAGE_DOS_HEADER>(process, base);
  const auto headers =
      Read<IMAGE_NT_HEADERS64>(process, base + static_cast<DWORD64>(start.e_lfanew));
  DWORD64 place =
      base + headers.OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
  std::vector<DWORD64> slots;
  for (;; place += sizeof(IMAGE_IMPORT_DESCRIPTOR)) {
    const auto library = Read<IMAGE_IMPORT_DESCRIPTOR>(process, place);
    if (!library.Name) return slots;
    for (DWORD64 i = 0;; i += sizeof(DWORD64)) {
      const auto name = Read<DWORD64>(process, base + library.OriginalFirstThunk + i);
      if (!name) break;
      if (IMAGE_SNAP_BY_ORDINAL64(name)) continue;
      constexpr DWORD64 Hint = sizeof(WORD);
      if (IsFileFunction(NameAt(process, base + name + Hint))) {
        slots.push_back(base + library.FirstThunk + i);
      }
    }
  }
}

// The system's libraries stand at the same place in every process.
DWORD64 AddressOfTerminateProcess() {
  return reinterpret_cast<DWORD64>(reinterpret_cast<void*>(
      GetProcAddress(GetModuleHandleA("kernel32.dll"), "TerminateProcess")));
}

}  // namespace

FileCallTrap::FileCallTrap(const RunningProgram& program) : process_(program.process()) {
  room_ = reinterpret_cast<DWORD64>(VirtualAllocEx(
      process_, nullptr, RoomSize, MEM_COMMIT | MEM_RESERVE, PAGE_EXECUTE_READWRITE));
  Require(room_ != 0, "get room in the program's memory");
  next_ = room_ + sizeof(DWORD64);
  EndAfter(INT_MAX);
  const std::vector<DWORD64> slots = SlotsOf(process_);
  Require(slots.size() > 10, "find the program's file functions");
  for (const DWORD64 slot : slots) LeadThrough(slot);
}

void FileCallTrap::EndAfter(int calls) {
  Write(process_, room_, &calls, sizeof calls);
}

void FileCallTrap::LeadThrough(DWORD64 slot) {
  const DWORD64 instructions = PutInstructions(Read<DWORD64>(process_, slot));
  DWORD protection = 0;
  auto* const place = reinterpret_cast<void*>(slot);
  Require(VirtualProtectEx(process_, place, sizeof slot, PAGE_READWRITE, &protection), "unlock");
  Write(process_, slot, &instructions, sizeof instructions);
  VirtualProtectEx(process_, place, sizeof slot, protection, &protection);
}

DWORD64 FileCallTrap::PutInstructions(DWORD64 function) {
  std::vector<BYTE> code;
  const auto put = [&code](std::initializer_list<BYTE> bytes) {
    code.insert(code.end(), bytes.begin(), bytes.end());
  };
  // mov r11, address: no function expects anything there.
  const auto load = [&](DWORD64 address) {
    put({0x49, 0xBB});
    const auto* const bytes = reinterpret_cast<const BYTE*>(&address);
    code.insert(code.end(), bytes, bytes + sizeof address);
  };
  load(room_);
  put({0xF0, 0x41, 0xFF, 0x0B});  // lock dec dword [r11]
  put({0x78, 0x0D});              // js over the next two
  load(function);
  put({0x41, 0xFF, 0xE3});                          // jmp r11
  put({0x48, 0x83, 0xEC, 0x28});                    // sub rsp, 40: room that each function may use
  put({0x48, 0xC7, 0xC1, 0xFF, 0xFF, 0xFF, 0xFF});  // mov rcx, -1: the process itself
  put({0xBA, ExitCode, 0, 0, 0});                   // mov edx, ExitCode
  load(AddressOfTerminateProcess());
  put({0x41, 0xFF, 0xD3});  // call r11
  const DWORD64 place = next_;
  Write(process_, place, code.data(), code.size());
  constexpr DWORD64 Alignment = 16;
  next_ = (place + code.size() + Alignment - 1) / Alignment * Alignment;
  Require(next_ <= room_ + RoomSize, "find place for all functions");
  return place;
}

}  // namespace E2e
