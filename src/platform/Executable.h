// The running program's own place and version, as its file tells them.
#pragma once

#include <string>

namespace Platform {

// The folder of the running executable, without a backslash at its end.
std::string ProgramFolder();

// The executable's name without folder and extension, such as "sk2pack".
std::string ExecutableName();

// The path of a file in the program folder that bears the executable's name: the program folder,
// "\", the executable's name and the given ending, such as ".lng".
std::string PathBesideProgram(const std::string& ending);

struct ProgramVersion {
  int major = 0;
  int minor = 0;
  int revision = 0;
  std::string productName;
  std::string fileDescription;
};

// The version resource of the running executable: the first three of its four version numbers and
// two of its texts. Zeros and empty texts if the executable has none.
// Fails with RuntimeError DeviceError if the system lacks its reader of such resources.
ProgramVersion ReadProgramVersion();

}  // namespace Platform
