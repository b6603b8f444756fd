// A file that stays as it is while it is looked at and used.
#pragma once

#include <string>

#include "platform/FileCalls.h"

namespace Platform {

// While it lives, others may read the file and run it, but neither write nor rename nor delete it.
// On Linux, where nobody holds a file against others, it only sees to it that the file is there.
class FileGuard {
 public:
  // Fails as FileReader does; with PermissionDenied too if another program is writing the file.
  explicit FileGuard(const std::string& path);

 private:
  OpenFile file_;
};

}  // namespace Platform
