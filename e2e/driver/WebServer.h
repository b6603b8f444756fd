// A web server of the tests' own, which answers as it is told: badly, too.
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <list>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "e2e/driver/RegistryKey.h"

namespace E2e {

// What is sent for an address. The connection is closed behind it.
struct WebAnswer {
  std::string body;
  std::string status = "200 OK";
  std::string headers;  // further ones, each with CR LF behind it
  // What is said of the body's length; empty if nothing is.
  std::optional<size_t> declaredLength;
  // The connection is reset behind so many bytes of the body; behind none of all if it is 0.
  std::optional<size_t> resetBehind;
  // The body comes byte by byte, one a second.
  bool isSlow = false;
  // Nothing comes at all.
  bool isSilent = false;

  // A page with a length that is right.
  static WebAnswer Page(const std::string& body, const std::string& status = "200 OK");
  // To another address.
  static WebAnswer RedirectTo(const std::string& url);
};

// While it lives, each program that starts asks it for every address, by the user's own settings.
// It is reached from this machine alone.
class WebServer {
 public:
  // Throws std::runtime_error if there is no port for it.
  WebServer();
  // Leaves off whatever it is sending.
  ~WebServer();
  WebServer(const WebServer&) = delete;
  WebServer& operator=(const WebServer&) = delete;

  // --- What stands behind an address, letter by letter; everything else is "404 Not Found" ---

  void Answer(const std::string& url, const WebAnswer& answer);
  void Serve(const std::string& url, const std::string& body) {
    Answer(url, WebAnswer::Page(body));
  }
  void TakeAway(const std::string& url);
  void TakeAwayAll();

  // Nobody answers at its port any more; or it does again.
  void GoOffline();
  void GoOnline();

  // Whatever is being sent, or kept waiting, ends there: its connection is closed.
  void EndTransfers();

  // Done before the next answer is sent, once, on a thread of the server.
  void BeforeNextAnswer(std::function<void()> action);

  // --- What was asked for ---

  std::vector<std::string> Requests();
  // Waits until it was asked for an address so many times in all.
  void WaitForRequest(const std::string& url, size_t times = 1);

 private:
  // As the system's header calls a SOCKET, which others do not want to include.
  using Socket = uintptr_t;
  struct Connection {
    Socket socket;
    std::jthread thread;
  };

  void Listen();
  void Accept(Socket listener);
  void Converse(Connection& connection);
  void Send(Socket socket, const WebAnswer& answer, int ends);
  // True if what is being sent is to end before the time is over.
  bool EndsWithin(std::chrono::seconds time, int ends);
  WebAnswer AnswerTo(const std::string& url);

  std::mutex mutex_;
  std::condition_variable end_;
  int ends_ = 0;  // how many times all transfers were ended
  std::map<std::string, WebAnswer> answers_;
  std::vector<std::string> requests_;
  std::function<void()> beforeNextAnswer_;
  unsigned short port_ = 0;  // any free one at first, then always the same
  Socket listener_;
  std::list<Connection> connections_;
  std::jthread acceptor_;
  RegistryKey proxy_;
};

}  // namespace E2e
