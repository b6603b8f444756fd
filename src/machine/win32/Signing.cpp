// Windows signs with no key that lies in a file: the openssl program does it, if the maker has it.
#include <array>
#include <optional>

#include "base/Ecdsa.h"
#include "base/RuntimeError.h"
#include "machine/win32/Failure.h"
#include "machine/win32/Handle.h"
#include "machine/win32/System.h"
#include "platform/Signature.h"

namespace Platform {

namespace {

constexpr LangText NoOpenSsl{
    "", "The openssl program, which signs, was not found in the folders of the PATH."};

// Looked for in the folders of the PATH alone, not in the current one or beside the program.
std::optional<std::string> FindOpenSsl() {
  std::string folders(GetEnvironmentVariableA("PATH", nullptr, 0), '\0');
  GetEnvironmentVariableA("PATH", folders.data(), static_cast<DWORD>(folders.size()));
  std::array<char, MAX_PATH> path{};
  const DWORD length =
      SearchPathA(folders.c_str(), "openssl.exe", nullptr, MAX_PATH, path.data(), nullptr);
  if (length == 0 || length >= path.size()) return std::nullopt;
  return std::string(path.data(), length);
}

struct Pipe {
  Handle reader;
  Handle writer;
};

// A pipe of which the child has one end.
Pipe MakePipe(Handle Pipe::*ofTheChild) {
  HANDLE reader = nullptr;
  HANDLE writer = nullptr;
  if (!CreatePipe(&reader, &writer, nullptr, 0)) FailAt(RuntimeErrorTexts.StartingProgram);
  Pipe pipe{Handle(reader), Handle(writer)};
  SetHandleInformation((pipe.*ofTheChild).get(), HANDLE_FLAG_INHERIT, HANDLE_FLAG_INHERIT);
  return pipe;
}

// What the program writes when it is given the input; nothing if it fails.
std::optional<std::string> OutputOf(const std::string& program, const std::string& arguments,
                                    const std::string& input) {
  Pipe toChild = MakePipe(&Pipe::reader);
  Pipe fromChild = MakePipe(&Pipe::writer);
  STARTUPINFOA how{};
  how.cb = sizeof how;
  how.dwFlags = STARTF_USESTDHANDLES;
  how.hStdInput = toChild.reader.get();
  how.hStdOutput = fromChild.writer.get();
  // What it has to say is for whoever publishes.
  how.hStdError = GetStdHandle(STD_ERROR_HANDLE);
  PROCESS_INFORMATION started{};
  std::string line = "\"" + program + "\" " + arguments;
  if (!CreateProcessA(program.c_str(), line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr,
                      &how, &started)) {
    FailAt(RuntimeErrorTexts.StartingProgram);
  }
  const Handle process(started.hProcess);
  const Handle thread(started.hThread);
  toChild.reader.Close();
  fromChild.writer.Close();
  DWORD count = 0;
  // A hash fits into any pipe. A child that does not read it fails, which its exit status tells.
  WriteFile(toChild.writer.get(), input.data(), static_cast<DWORD>(input.size()), &count, nullptr);
  toChild.writer.Close();
  std::string output;
  std::array<char, 256> block{};
  while (ReadFile(fromChild.reader.get(), block.data(), block.size(), &count, nullptr) && count) {
    // More than this is no signature.
    if (output.size() <= Ecdsa::LongestDer) output.append(block.data(), count);
  }
  WaitForSingleObject(process.get(), INFINITE);
  DWORD status = 1;
  if (!GetExitCodeProcess(process.get(), &status) || status != 0) return std::nullopt;
  return output;
}

}  // namespace

std::string SignHash(const std::string& hash, const std::string& keyFile) {
  const std::optional<std::string> program = FindOpenSsl();
  if (!program) throw RuntimeError(RuntimeError::DeviceError, NoOpenSsl);
  // No file name holds a quotation mark.
  std::optional<std::string> signature =
      OutputOf(*program, "pkeyutl -sign -inkey \"" + keyFile + "\"", hash);
  if (!signature || !Ecdsa::SignatureInDer(*signature)) {
    throw RuntimeError(RuntimeError::DeviceError, NoPrivateKey, keyFile);
  }
  return *std::move(signature);
}

}  // namespace Platform
