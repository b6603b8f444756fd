// The web of the simulated machine: it answers as it is told, and remembers what was asked for.
#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace Simulated {

// What comes of a download.
struct WebAnswer {
  int32_t result = 0;                // as Platform::DownloadToFile returns it
  std::optional<std::string> bytes;  // what gets into the file; nothing if none is made
};

class Web {
 public:
  // What the system says of an address that nobody answers.
  static constexpr int32_t NotFound = static_cast<int32_t>(0x800C0005);

  // --- What stands behind an address, letter by letter ---

  void Serve(const std::string& url, const std::string& bytes) { pages_[url] = {0, bytes}; }
  void Answer(const std::string& url, const WebAnswer& answer) { pages_[url] = answer; }
  // The same for one download only. Those that are told first come first.
  void AnswerOnce(const std::string& url, const WebAnswer& answer) { once_[url].push_back(answer); }
  void TakeAway(const std::string& url) { pages_.erase(url); }

  // No address answers any more, or all do again.
  void GoOffline() { isOnline_ = false; }
  void GoOnline() { isOnline_ = true; }

  // The system has a copy of its own: that is what a download gets, until the copy is dropped.
  void KeepInCache(const std::string& url, const std::string& bytes) { cache_[url] = bytes; }

  // --- What was asked for ---

  // The addresses of all downloads, in their order, whatever came of them.
  const std::vector<std::string>& Downloads() const { return downloads_; }
  // Those whose copies were dropped, whether there was one or not.
  const std::vector<std::string>& Dropped() const { return dropped_; }

  // For the service.
  WebAnswer Download(const std::string& url);
  void Drop(const std::string& url);

 private:
  bool isOnline_ = true;
  std::map<std::string, WebAnswer> pages_;
  std::map<std::string, std::deque<WebAnswer>> once_;
  std::map<std::string, std::string> cache_;
  std::vector<std::string> downloads_;
  std::vector<std::string> dropped_;
};

}  // namespace Simulated
