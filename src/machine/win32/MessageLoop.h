// Where the messages of all windows come through.
#pragma once

#include <functional>

namespace Platform {

// Handles messages until the condition holds, or the program ends: the caller's caller then learns
// of it too.
void HandleMessagesUntil(const std::function<bool()>& isOver);

}  // namespace Platform
