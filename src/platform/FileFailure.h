// From the system's codes to the program's failures: the one place that knows both.
#pragma once

#include <string>

#include "base/RuntimeError.h"
#include "platform/FileTypes.h"
#include "platform/SystemError.h"

namespace Platform {

// What was being done to a file when it failed.
enum class FileStep {
  Opening,  // to read it
  Reading,
  Writing,  // opening to write included
  Replacing,
  Rewriting,
  Restoring,
  Renaming,
  Deleting,
  AskingAttributes,
  SettingAttributes,
  Listing,
  MakingFolder,
  DeletingFolder,
  AskingFreeSpace,
};

// The RuntimeError that a system's error on a file stands for.
//   path  the file or folder that was asked for. Where the system says no more than "denied", its
//         attributes tell a write-protected file or a folder from one that is in use.
RuntimeError FailureOf(SystemError error, const std::string& path, FileStep step);

// Fails with it.
[[noreturn]] void FailWith(SystemError error, const std::string& path, FileStep step);
// Fails with it unless the call went well.
void Require(SystemError error, const std::string& path, FileStep step);

// Fails with PathFileAccess if what stands under the name is a folder or a file that is read-only,
// and with FileAlreadyExists if anything may not stand there.
void RequireWritable(const std::string& path, IfThere ifThere = IfThere::Replace);

}  // namespace Platform
