#include "platform/ServedFolder.h"

namespace Platform {

std::string ServedFolder(const std::string& site) {
  return site + "\\current";
}

}  // namespace Platform
