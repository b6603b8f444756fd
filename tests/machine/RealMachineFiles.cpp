// Files and folders of the contract tests, reached by the system's own functions.
#include "tests/machine/RealMachine.h"

#include <aclapi.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <map>

#include "tests/machine/TestMachine.h"

namespace TestMachine {

namespace {

std::map<std::string, HANDLE>& Holds() {
  static std::map<std::string, HANDLE> holds;
  return holds;
}

constexpr const char* ScratchName = "sk2contract";  // and the number of the process

// Where the system keeps temporary files, with a backslash at its end.
std::string FolderOfScratchFolders() {
  // Asked for once: a test may move the folder.
  static const std::string folder = [] {
    char path[MAX_PATH + 1];
    const DWORD length = GetTempPathA(sizeof path, path);
    return std::string(path, length);
  }();
  return folder;
}

std::string TemporaryFolder() {
  return FolderOfScratchFolders() + ScratchName + std::to_string(GetCurrentProcessId());
}

// The names in a folder but "." and "..".
std::vector<std::string> AllNames(const std::string& folder) {
  std::vector<std::string> names;
  WIN32_FIND_DATAA found;
  const HANDLE search = FindFirstFileA((folder + "\\*").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return names;
  do {
    const std::string name = found.cFileName;
    if (name != "." && name != "..") names.push_back(name);
  } while (FindNextFileA(search, &found));
  FindClose(search);
  return names;
}

// The right to make and delete files in a folder, for everyone.
void SetRefusal(const std::string& folder, bool isRefused) {
  std::string name = folder;
  PSID everyone = nullptr;
  SID_IDENTIFIER_AUTHORITY world = SECURITY_WORLD_SID_AUTHORITY;
  if (!AllocateAndInitializeSid(&world, 1, SECURITY_WORLD_RID, 0, 0, 0, 0, 0, 0, 0, &everyone)) {
    return;
  }
  EXPLICIT_ACCESSA access{};
  access.grfAccessPermissions = FILE_ADD_FILE | FILE_DELETE_CHILD;
  access.grfAccessMode = isRefused ? DENY_ACCESS : GRANT_ACCESS;
  access.grfInheritance = NO_INHERITANCE;
  access.Trustee.TrusteeForm = TRUSTEE_IS_SID;
  access.Trustee.ptstrName = static_cast<LPSTR>(everyone);
  PACL old = nullptr;
  PACL changed = nullptr;
  PSECURITY_DESCRIPTOR descriptor = nullptr;
  if (GetNamedSecurityInfoA(name.data(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr,
                            nullptr, &old, nullptr, &descriptor) == ERROR_SUCCESS &&
      SetEntriesInAclA(1, &access, old, &changed) == ERROR_SUCCESS) {
    SetNamedSecurityInfoA(name.data(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr,
                          changed, nullptr);
  }
  LocalFree(changed);
  LocalFree(descriptor);
  FreeSid(everyone);
}

bool TakesNewFiles(const std::string& folder) {
  const std::string probe = folder + "\\probe";
  const HANDLE file = CreateFileA(probe.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                  FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return false;
  CloseHandle(file);
  DeleteFileA(probe.c_str());
  return true;
}

// The path of a file or folder in the system beneath, in its quotes; empty if there is none.
std::string HostName(const std::string& path) {
  using GetHostName = char*(CDECL*)(const wchar_t*);
  const auto getHostName = reinterpret_cast<GetHostName>(reinterpret_cast<void*>(
      GetProcAddress(GetModuleHandleA("kernel32"), "wine_get_unix_file_name")));
  if (!getHostName) return "";
  char* const hostName = getHostName(std::wstring(path.begin(), path.end()).c_str());
  if (!hostName) return "";
  const std::string name = std::string("'") + hostName + "'";
  HeapFree(GetProcessHeap(), 0, hostName);
  return name;
}

// Where the system does not mind rights, the one beneath it may have a way of its own. Returns
// false if there is none, or it is not the user's to go.
//   attribute  "i" for what cannot be changed, "a" for what can only grow; with "+" or "-".
bool SetHostAttribute(const std::string& path, const std::string& attribute) {
  const std::string name = HostName(path);
  if (name.empty()) return false;
  // The system beneath gives no handle to wait for, so it leaves a mark when it is done, and one
  // before if it went well.
  const std::string hostMark = HostName(TemporaryFolder());
  const std::string wentWell = TemporaryFolder() + ".well";
  const std::string mark = TemporaryFolder() + ".done";
  std::string command = "\"Z:\\bin\\sh\" -c \"chattr " + attribute + " " + name + " && touch " +
                        hostMark + ".well; touch " + hostMark + ".done\"";
  STARTUPINFOA start{};
  start.cb = sizeof start;
  PROCESS_INFORMATION process{};
  if (!CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                      &process)) {
    return false;
  }
  // A program of the system beneath has no process here, and what is told of its thread is noise.
  if (process.hProcess) {
    CloseHandle(process.hProcess);
    CloseHandle(process.hThread);
  }
  constexpr ULONGLONG PatienceMs = 10000;
  const ULONGLONG deadline = GetTickCount64() + PatienceMs;
  while (!DeleteFileA(mark.c_str()) && GetTickCount64() < deadline) SwitchToThread();
  return DeleteFileA(wentWell.c_str()) != 0;
}

std::vector<std::string>& OnlyGrowing() {
  static std::vector<std::string> paths;
  return paths;
}

std::vector<std::string>& Refusing() {
  static std::vector<std::string> folders;
  return folders;
}

void RemoveFolder(const std::string& folder) {
  for (const std::string& name : AllNames(folder)) {
    const std::string path = folder + "\\" + name;
    const DWORD attributes = GetFileAttributesA(path.c_str());
    SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);
    if (attributes & FILE_ATTRIBUTE_DIRECTORY) {
      RemoveFolder(path);
    } else {
      EXPECT_TRUE(DeleteFileA(path.c_str())) << path << " is still open";
    }
  }
  RemoveDirectoryA(folder.c_str());
}

// Gives the user back the right to make and delete files in a folder.
void AllowNewFiles(const std::string& folder) {
  SetRefusal(folder, false);
  if (!TakesNewFiles(folder)) SetHostAttribute(folder, "-i");
  EXPECT_TRUE(TakesNewFiles(folder)) << folder << " cannot be written to any more";
}

bool IsAnotherRunning(DWORD processId) {
  if (processId == GetCurrentProcessId()) return false;  // numbers are given out again
  const HANDLE process = OpenProcess(SYNCHRONIZE, FALSE, processId);
  if (!process) return false;
  const bool isRunning = WaitForSingleObject(process, 0) == WAIT_TIMEOUT;
  CloseHandle(process);
  return isRunning;
}

// Removes what runs that were killed have left, folders that refuse files among it.
void RemoveLeftovers() {
  const std::string start = ScratchName;
  for (const std::string& name : AllNames(FolderOfScratchFolders())) {
    if (!name.starts_with(start)) continue;
    if (IsAnotherRunning(std::strtoul(name.c_str() + start.size(), nullptr, 10))) continue;
    const std::string folder = FolderOfScratchFolders() + name;
    SetHostAttribute(folder, "-R -a");
    for (const std::string& inside : AllNames(folder)) {
      const std::string path = folder + "\\" + inside;
      const DWORD attributes = GetFileAttributesA(path.c_str());
      if (attributes & FILE_ATTRIBUTE_DIRECTORY) AllowNewFiles(path);
    }
    AllowNewFiles(folder);
    RemoveFolder(folder);
  }
}

}  // namespace

std::string ScratchFolder() {
  [[maybe_unused]] static const bool isTidy = (RemoveLeftovers(), true);
  const std::string folder = TemporaryFolder();
  CreateDirectoryA(folder.c_str(), nullptr);
  return folder;
}

void PutFile(const std::string& path, const std::string& bytes) {
  const HANDLE file = CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                  FILE_ATTRIBUTE_NORMAL, nullptr);
  DWORD count = 0;
  const bool isWritten =
      file != INVALID_HANDLE_VALUE &&
      WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr);
  EXPECT_TRUE(isWritten) << path;
  CloseHandle(file);
}

void PutFolder(const std::string& path) {
  EXPECT_TRUE(CreateDirectoryA(path.c_str(), nullptr)) << path;
}

std::optional<std::string> BytesOf(const std::string& path) {
  const HANDLE file = CreateFileA(path.c_str(), GENERIC_READ,
                                  FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                  OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return std::nullopt;
  std::string bytes;
  char block[4096];
  DWORD count = 0;
  while (ReadFile(file, block, sizeof block, &count, nullptr) && count > 0) {
    bytes.append(block, count);
  }
  CloseHandle(file);
  return bytes;
}

std::vector<std::string> NamesIn(const std::string& folder) {
  std::vector<std::string> names = AllNames(folder);
  std::sort(names.begin(), names.end());
  return names;
}

void SetAttributes(const std::string& path, int attributes) {
  DWORD native = 0;
  if (attributes & ReadOnly) native |= FILE_ATTRIBUTE_READONLY;
  if (attributes & Hidden) native |= FILE_ATTRIBUTE_HIDDEN;
  if (attributes & System) native |= FILE_ATTRIBUTE_SYSTEM;
  EXPECT_TRUE(SetFileAttributesA(path.c_str(), native ? native : FILE_ATTRIBUTE_NORMAL)) << path;
}

int AttributesOf(const std::string& path) {
  const DWORD native = GetFileAttributesA(path.c_str());
  int attributes = 0;
  if (native & FILE_ATTRIBUTE_READONLY) attributes |= ReadOnly;
  if (native & FILE_ATTRIBUTE_HIDDEN) attributes |= Hidden;
  if (native & FILE_ATTRIBUTE_SYSTEM) attributes |= System;
  return attributes;
}

void Hold(const std::string& path, Sharing sharing) {
  const bool isWritten = sharing == Sharing::ForWriting || sharing == Sharing::ForReadingAndWriting;
  const DWORD access = isWritten ? GENERIC_READ | GENERIC_WRITE : GENERIC_READ;
  const DWORD shared = sharing == Sharing::WithNobody ? 0
                       : sharing == Sharing::ForReadingAndWriting
                           ? FILE_SHARE_READ | FILE_SHARE_WRITE
                           : FILE_SHARE_READ;
  const HANDLE file = CreateFileA(path.c_str(), access, shared, nullptr, OPEN_EXISTING,
                                  FILE_ATTRIBUTE_NORMAL, nullptr);
  ASSERT_NE(file, INVALID_HANDLE_VALUE) << path;
  Holds()[path] = file;
}

void LetGo(const std::string& path) {
  CloseHandle(Holds().at(path));
  Holds().erase(path);
}

OwnTemporaryFolder::OwnTemporaryFolder() {
  char before[MAX_PATH + 1] = "";
  before_.assign(before, GetEnvironmentVariableA("TMP", before, sizeof before));
  const std::string folder = TemporaryFolder() + ".temp";
  RemoveFolder(folder);
  CreateDirectoryA(folder.c_str(), nullptr);
  SetEnvironmentVariableA("TMP", folder.c_str());
}

OwnTemporaryFolder::~OwnTemporaryFolder() {
  SetEnvironmentVariableA("TMP", before_.c_str());
  RemoveFolder(TemporaryFolder() + ".temp");
}

bool RefuseNewFiles(const std::string& folder) {
  Refusing().push_back(folder);
  SetRefusal(folder, true);
  if (TakesNewFiles(folder)) SetHostAttribute(folder, "+i");
  return !TakesNewFiles(folder);
}

}  // namespace TestMachine

bool RealMachine::RefuseShortening(const std::string& path) {
  if (!TestMachine::SetHostAttribute(path, "+a")) return false;
  TestMachine::OnlyGrowing().push_back(path);
  return true;
}

void RealMachine::PutBackFiles() {
  using namespace TestMachine;
  for (const std::string& path : OnlyGrowing()) SetHostAttribute(path, "-a");
  OnlyGrowing().clear();
  while (!Holds().empty()) LetGo(std::string(Holds().begin()->first));
  for (const std::string& folder : Refusing()) AllowNewFiles(folder);
  Refusing().clear();
  RemoveFolder(TemporaryFolder());
}
