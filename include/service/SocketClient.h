#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "service/AddressResolver.h"

// A connected (or connectable) POSIX stream socket on the client side. It owns its descriptor:
// the destructor closes it unless it was released. One object serves one connection.
class SocketClient {
 public:
  // An empty client; create() opens its socket.
  SocketClient() = default;
  // Wraps a socket accepted elsewhere (a server's connection); the object then owns it.
  explicit SocketClient(uint64_t socket);
  ~SocketClient();
  SocketClient(const SocketClient&) = delete;
  SocketClient& operator=(const SocketClient&) = delete;

  // Resolves host:port with the hints family/socktype/protocol (AF_INET, SOCK_STREAM, ...) and
  // opens a socket for the first address. Throws std::runtime_error("Error: invalid socket.")
  // when the name does not resolve or no socket can be opened.
  void create(int family, int socktype, int protocol, const std::string& host,
              const std::string& port);
  // Connects to the resolved address. Returns false when the peer refuses or is unreachable.
  [[nodiscard]] bool connectTo();
  // Sends every byte of message, resuming after partial writes. Returns false when the peer
  // has gone or the socket fails.
  [[nodiscard]] bool sendMsg(const std::string& message);
  // Receives at most maxBytes into buffer. Returns the count read, 0 when the peer closed and
  // -1 on an error or when the receive timeout expired.
  [[nodiscard]] long recvMsg(char* buffer, std::size_t maxBytes);
  // Bounds every later receive to the given milliseconds (0 waits for ever). Returns false
  // when the socket refuses the option.
  bool setReceiveTimeout(int milliseconds);
  // Closes the socket; later calls do nothing.
  void closeSocket();
  // The descriptor, or the invalid value (all bits set) when closed.
  [[nodiscard]] uint64_t getSocket() const;
  // Gives the descriptor up without closing it; the object then holds none.
  uint64_t release();

  static constexpr uint64_t invalidSocket = ~uint64_t{0};

 private:
  uint64_t socket_ = invalidSocket;
  // What create() resolved, for connectTo().
  AddressResolver::AddressList addresses{nullptr, &freeaddrinfo};
};
