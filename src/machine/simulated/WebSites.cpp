#include "machine/simulated/WebSites.h"

namespace Simulated {

WebAnswer Web::Download(const std::string& url) {
  downloads_.push_back(url);
  if (const auto copy = cache_.find(url); copy != cache_.end()) return {0, copy->second};
  if (!isOnline_) return {NotFound, {}};
  if (const auto answers = once_.find(url); answers != once_.end() && !answers->second.empty()) {
    WebAnswer answer = answers->second.front();
    answers->second.pop_front();
    return answer;
  }
  const auto page = pages_.find(url);
  return page == pages_.end() ? WebAnswer{NotFound, {}} : page->second;
}

void Web::Drop(const std::string& url) {
  dropped_.push_back(url);
  cache_.erase(url);
}

}  // namespace Simulated
