// Questions to the system that it may never answer.
#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <utility>

#include "orec/Worker.h"

namespace ORec {

// What a question comes to; nothing if that takes too long. The thread that asks is then left
// behind.
//   ask  outlives this call; it may not throw.
template <class Answer>
std::optional<Answer> InTime(std::chrono::milliseconds atMost, std::function<Answer()> ask) {
  struct Shared {
    std::mutex mutex;
    std::condition_variable changed;
    std::optional<Answer> answer;
  };
  const auto shared = std::make_shared<Shared>();
  const bool hasThread = StartWorker([shared, question = std::move(ask)] {
    Answer answer = question();
    const std::lock_guard lock(shared->mutex);
    shared->answer = std::move(answer);
    shared->changed.notify_all();
  });
  if (!hasThread) return std::nullopt;
  std::unique_lock lock(shared->mutex);
  shared->changed.wait_for(lock, atMost, [&] { return shared->answer.has_value(); });
  return shared->answer;
}

}  // namespace ORec
