#pragma once

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <mutex>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

// A web service for the tests: one thread on a loopback port that takes each connection in turn,
// reads the request up to its blank line, and answers with a fixed text. It can also stay silent,
// or give its answer one byte at a time; either way it keeps the connection until the client
// closes it or the server stops.
class LocalHttpServer {
 public:
  enum class Manner { whole, silent, trickle };

  explicit LocalHttpServer(std::string answer, Manner manner = Manner::whole)
      : answer(std::move(answer)), manner(manner) {
    listener = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof(address);
    if (listener < 0 || ::bind(listener, reinterpret_cast<sockaddr*>(&address), size) != 0 ||
        ::listen(listener, 8) != 0 ||
        ::getsockname(listener, reinterpret_cast<sockaddr*>(&address), &size) != 0) {
      throw std::runtime_error("LocalHttpServer: no loopback port");
    }
    boundPort = ntohs(address.sin_port);
    worker = std::thread([this] { serve(); });
  }

  ~LocalHttpServer() {
    stopping = true;
    worker.join();
    ::close(listener);
  }

  LocalHttpServer(const LocalHttpServer&) = delete;
  LocalHttpServer& operator=(const LocalHttpServer&) = delete;

  unsigned int port() const { return boundPort; }

  // The requests received so far, each up to and with its blank line.
  std::vector<std::string> requests() const {
    std::lock_guard<std::mutex> lock(mutex);
    return received;
  }

 private:
  // Whether descriptor has something to read within a short wait.
  static bool readable(int descriptor) {
    pollfd watched{descriptor, POLLIN, 0};
    return ::poll(&watched, 1, 20) > 0;
  }

  void serve() {
    while (!stopping) {
      if (!readable(listener)) continue;
      const int connection = ::accept(listener, nullptr, nullptr);
      if (connection < 0) continue;
      converse(connection);
      ::close(connection);
    }
  }

  void converse(int connection) {
    std::string request;
    char buffer[4096];
    while (!stopping && request.find("\r\n\r\n") == std::string::npos) {
      if (!readable(connection)) continue;
      const ssize_t count = ::recv(connection, buffer, sizeof(buffer), 0);
      if (count <= 0) return;
      request.append(buffer, static_cast<std::size_t>(count));
    }
    {
      std::lock_guard<std::mutex> lock(mutex);
      received.push_back(request);
    }
    if (manner == Manner::whole) {
      ::send(connection, answer.data(), answer.size(), MSG_NOSIGNAL);
    }
    for (std::size_t sent = 0; manner == Manner::trickle && !stopping && sent < answer.size();
         ++sent) {
      if (::send(connection, answer.data() + sent, 1, MSG_NOSIGNAL) != 1) return;
      std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    while (!stopping) {
      if (readable(connection) && ::recv(connection, buffer, sizeof(buffer), 0) <= 0) return;
    }
  }

  std::string answer;
  Manner manner;
  int listener = -1;
  unsigned int boundPort = 0;
  std::atomic<bool> stopping{false};
  mutable std::mutex mutex;
  std::vector<std::string> received;
  std::thread worker;
};
