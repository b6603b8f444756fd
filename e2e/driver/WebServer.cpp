// Before the header of all of Windows.
#include <winsock2.h>

#include <algorithm>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "e2e/driver/Wait.h"
#include "e2e/driver/WebServer.h"

namespace E2e {

namespace {

// The system's sockets are used from now on.
void BeginSockets() {
  static const int failure = [] {
    WSADATA data{};
    return WSAStartup(MAKEWORD(2, 2), &data);
  }();
  if (failure) throw std::runtime_error("no sockets here");
}

sockaddr_in Loopback(unsigned short port) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  address.sin_port = htons(port);
  return address;
}

// False if the other side is there no more.
bool SendAll(SOCKET socket, const std::string& bytes) {
  for (size_t sent = 0; sent < bytes.size();) {
    const int count = send(socket, bytes.data() + sent, static_cast<int>(bytes.size() - sent), 0);
    if (count <= 0) return false;
    sent += static_cast<size_t>(count);
  }
  return true;
}

// The first line of a request, once all of its head has come; empty if it does not come.
std::string ReceiveRequest(SOCKET socket) {
  std::string head;
  while (head.find("\r\n\r\n") == std::string::npos) {
    char bytes[4096];
    const int count = recv(socket, bytes, sizeof bytes, 0);
    if (count <= 0) return "";
    head.append(bytes, static_cast<size_t>(count));
  }
  return head.substr(0, head.find("\r\n"));
}

// The address in the first line of a request, "GET http://host:80/path HTTP/1.1": without the port
// that everybody means who names none. Empty if there is none.
std::string UrlIn(const std::string& request) {
  const size_t begin = request.find(' ') + 1;
  const size_t end = request.find(' ', begin);
  if (end == std::string::npos) return "";
  std::string url = request.substr(begin, end - begin);
  const size_t path = url.find('/', std::string("http://").size());
  constexpr std::string_view UsualPort = ":80";
  if (path != std::string::npos && url.substr(0, path).ends_with(UsualPort)) {
    url.erase(path - UsualPort.size(), UsualPort.size());
  }
  return url;
}

// The other side gets an error when the connection is closed, instead of an end.
void ResetAtClose(SOCKET socket) {
  const linger atOnce{1, 0};
  setsockopt(socket, SOL_SOCKET, SO_LINGER, reinterpret_cast<const char*>(&atOnce), sizeof atOnce);
}

}  // namespace

WebAnswer WebAnswer::Page(const std::string& body, const std::string& status) {
  WebAnswer answer;
  answer.body = body;
  answer.status = status;
  answer.declaredLength = body.size();
  return answer;
}

WebAnswer WebAnswer::RedirectTo(const std::string& url) {
  WebAnswer answer = Page("<html>It has moved.</html>", "302 Found");
  answer.headers = "Location: " + url + "\r\n";
  return answer;
}

WebServer::WebServer()
    : proxy_(HKEY_CURRENT_USER, "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings",
             KEY_WOW64_64KEY) {
  BeginSockets();
  Listen();
  proxy_.Set("ProxyEnable", 1UL);
  proxy_.Set("ProxyServer", "127.0.0.1:" + std::to_string(port_));
  // Under no circumstances is anybody else asked.
  proxy_.Remove("ProxyOverride");
}

WebServer::~WebServer() {
  GoOffline();
  {
    const std::lock_guard lock(mutex_);
    ++ends_;
    for (const Connection& connection : connections_) {
      if (connection.socket != INVALID_SOCKET) shutdown(connection.socket, SD_BOTH);
    }
  }
  end_.notify_all();
  for (Connection& connection : connections_) connection.thread.join();
}

void WebServer::Answer(const std::string& url, const WebAnswer& answer) {
  const std::lock_guard lock(mutex_);
  answers_[url] = answer;
}

void WebServer::TakeAway(const std::string& url) {
  const std::lock_guard lock(mutex_);
  answers_.erase(url);
}

void WebServer::TakeAwayAll() {
  const std::lock_guard lock(mutex_);
  answers_.clear();
  requests_.clear();
  beforeNextAnswer_ = nullptr;
}

void WebServer::GoOffline() {
  if (listener_ == INVALID_SOCKET) return;
  shutdown(listener_, SD_BOTH);
  closesocket(std::exchange(listener_, INVALID_SOCKET));
  acceptor_.join();
}

void WebServer::GoOnline() {
  if (listener_ == INVALID_SOCKET) Listen();
}

void WebServer::Listen() {
  listener_ = socket(AF_INET, SOCK_STREAM, IPPROTO_TCP);
  // The port may be remembered for a while after its connections have ended.
  const BOOL again = TRUE;
  setsockopt(listener_, SOL_SOCKET, SO_REUSEADDR, reinterpret_cast<const char*>(&again),
             sizeof again);
  sockaddr_in address = Loopback(port_);
  int size = sizeof address;
  if (bind(listener_, reinterpret_cast<sockaddr*>(&address), size) ||
      listen(listener_, SOMAXCONN) ||
      getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &size)) {
    closesocket(std::exchange(listener_, INVALID_SOCKET));
    throw std::runtime_error("no port for a web server");
  }
  port_ = ntohs(address.sin_port);
  acceptor_ = std::jthread([this, listener = listener_] { Accept(listener); });
}

void WebServer::Accept(SOCKET listener) {
  for (SOCKET socket; (socket = accept(listener, nullptr, nullptr)) != INVALID_SOCKET;) {
    const std::lock_guard lock(mutex_);
    Connection& connection = connections_.emplace_back();
    connection.socket = socket;
    connection.thread = std::jthread([this, &connection] { Converse(connection); });
  }
}

void WebServer::Converse(Connection& connection) {
  const SOCKET socket = connection.socket;
  int ends = 0;
  {
    const std::lock_guard lock(mutex_);
    ends = ends_;
  }
  const std::string url = UrlIn(ReceiveRequest(socket));
  if (!url.empty()) Send(socket, AnswerTo(url), ends);
  const std::lock_guard lock(mutex_);
  closesocket(std::exchange(connection.socket, INVALID_SOCKET));
}

WebAnswer WebServer::AnswerTo(const std::string& url) {
  std::function<void()> action;
  WebAnswer answer = WebAnswer::Page("<html>404 Not Found</html>", "404 Not Found");
  {
    const std::lock_guard lock(mutex_);
    requests_.push_back(url);
    action = std::exchange(beforeNextAnswer_, nullptr);
    const auto told = answers_.find(url);
    if (told != answers_.end()) answer = told->second;
  }
  if (action) action();
  return answer;
}

void WebServer::Send(SOCKET socket, const WebAnswer& answer, int ends) {
  if (answer.isSilent) {
    while (!EndsWithin(std::chrono::seconds(1), ends)) {
    }
    return;
  }
  if (answer.resetBehind == 0U) return ResetAtClose(socket);
  std::string head = "HTTP/1.1 " + answer.status + "\r\nConnection: close\r\n" + answer.headers;
  if (answer.declaredLength) {
    head += "Content-Length: " + std::to_string(*answer.declaredLength) + "\r\n";
  }
  if (!SendAll(socket, head + "\r\n")) return;
  const std::string body = answer.body.substr(0, answer.resetBehind.value_or(answer.body.size()));
  if (answer.isSlow) {
    for (const char byte : body) {
      if (EndsWithin(std::chrono::seconds(1), ends) || !SendAll(socket, std::string(1, byte)))
        return;
    }
  } else if (!SendAll(socket, body)) {
    return;
  }
  if (answer.resetBehind) ResetAtClose(socket);
}

void WebServer::EndTransfers() {
  {
    const std::lock_guard lock(mutex_);
    ++ends_;
  }
  end_.notify_all();
}

bool WebServer::EndsWithin(std::chrono::seconds time, int ends) {
  std::unique_lock lock(mutex_);
  return end_.wait_for(lock, time, [&] { return ends_ != ends; });
}

void WebServer::BeforeNextAnswer(std::function<void()> action) {
  const std::lock_guard lock(mutex_);
  beforeNextAnswer_ = std::move(action);
}

std::vector<std::string> WebServer::Requests() {
  const std::lock_guard lock(mutex_);
  return requests_;
}

void WebServer::WaitForRequest(const std::string& url, size_t times) {
  WaitUntil("a request for " + url, [&] {
    const std::vector<std::string> requests = Requests();
    return static_cast<size_t>(std::count(requests.begin(), requests.end(), url)) >= times;
  });
}

}  // namespace E2e
