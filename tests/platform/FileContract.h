// The ground of the contracts of files: how a call fails, and a folder of the running test.
#pragma once

#include <gmock/gmock.h>

#include "base/RuntimeError.h"
#include "platform/Files.h"
#include "tests/machine/TestMachine.h"

using Platform::AppendToFile;
using Platform::AttributesOf;
using Platform::CopyFileTo;
using Platform::FileAttributes;
using Platform::FileExists;
using Platform::FileReader;
using Platform::FileWriter;
using Platform::FolderEntry;
using Platform::FreeSpaceIn;
using Platform::IfThere;
using Platform::ListFolder;
using Platform::MakeFolder;
using Platform::ReadWholeFile;
using Platform::RemoveFile;
using Platform::RemoveFileOfEndingProgram;
using Platform::RemoveFolder;
using Platform::RenameFile;
using Platform::StampOf;
using Platform::WriteWholeFile;
using TestMachine::Sharing;

class FilesContract : public ContractTest {
 protected:
  std::string In(const std::string& name) const { return folder + "\\" + name; }

  // The number and the file with which an action fails.
  template <class Action>
  static testing::AssertionResult FailsWith(RuntimeError::Number number, const std::string& path,
                                            const Action& action) {
    try {
      action();
    } catch (const RuntimeError& error) {
      if (error.number() != number) {
        return testing::AssertionFailure() << "failed with " << error.number();
      }
      if (error.file() != path) return testing::AssertionFailure() << "told " << error.file();
      // What the system refused carries its step and its code, both or none.
      if ((error.system().step.english != nullptr) != (error.system().code != 0)) {
        return testing::AssertionFailure() << "told the code " << error.system().code;
      }
      return testing::AssertionSuccess();
    }
    return testing::AssertionFailure() << "did not fail";
  }

  template <class Action>
  static testing::AssertionResult FailsByName(const std::string& path, const Action& action) {
    try {
      action();
    } catch (const RuntimeError& error) {
      if (std::string(error.cause().key) == RuntimeErrorTexts.NameNotUsable.key) {
        return testing::AssertionSuccess() << error.number();
      }
      return testing::AssertionFailure() << "cause " << error.what();
    }
    return testing::AssertionFailure() << "did not fail: " << path;
  }

  static std::string ReadToEnd(FileReader& reader) {
    std::string all;
    char block[5];
    while (const size_t count = reader.Read(block, sizeof block)) all.append(block, count);
    return all;
  }

  // Starts, writes and finishes a file in one go.
  static void WriteInPieces(const std::string& path, const std::vector<std::string>& pieces) {
    FileWriter writer(path);
    for (const std::string& piece : pieces) writer.Write(piece);
    writer.Finish();
  }

  const std::string folder = TestMachine::ScratchFolder();
};
