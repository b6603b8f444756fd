#include "update/UpdateKey.h"

#include "base/Ecdsa.h"
#include "base/RuntimeError.h"
#include "platform/Resources.h"

namespace Updater {

std::optional<std::string> UpdateKey() {
  const std::string text = Platform::ReadResource(Platform::DataResource, "UPDATEKEY").value_or("");
  if (text.starts_with("none")) return std::nullopt;
  std::optional<std::string> key = Ecdsa::KeyInPem(text);
  if (!key) throw RuntimeError(RuntimeError::InvalidCall);
  return key;
}

}  // namespace Updater
