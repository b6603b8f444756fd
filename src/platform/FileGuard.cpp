#include "platform/FileGuard.h"

#include "platform/FileFailure.h"
#include "platform/Paths.h"

namespace Platform {

FileGuard::FileGuard(const std::string& path) {
  CheckName(path);
  Require(file_.Open(path, OpenFile::How::ToGuard), path, FileStep::Opening);
}

}  // namespace Platform
