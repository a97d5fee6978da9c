#pragma once

#include <cstdint>
#include <string>

#include "service/AddressResolver.h"

// The listening socket of the service, over POSIX sockets.
class SocketServer {
 public:
  SocketServer() = default;
  ~SocketServer();
  SocketServer(const SocketServer&) = delete;
  SocketServer& operator=(const SocketServer&) = delete;

  // Resolves the local address host:service with the hints family/socktype/protocol and opens a
  // socket for it; service "0" lets the system choose a free port. Throws std::runtime_error
  // "SocketServer::create(): cannot resolve <host>:<service>" or
  // "SocketServer::create(): cannot open a socket".
  void create(int family, int socktype, int protocol, const std::string& service = "80",
              const std::string& host = "127.0.0.1");
  // Binds to the resolved address. Throws std::runtime_error
  // "SocketServer::bindSocket(): cannot bind <host>:<service> (<reason>)".
  void bindSocket();
  // Starts listening. Throws std::runtime_error "SocketServer::listenSocket(): <reason>".
  void listenSocket();
  // Waits at most timeoutMilliseconds for a connection and gives its socket, or the invalid
  // value (all bits set) when none came, so that a caller can look at a stop flag between waits.
  uint64_t acceptConnection(int timeoutMilliseconds);
  // The port bound, once bound.
  int getPort() const;
  void closeSocket();

  static constexpr uint64_t invalidSocket = ~uint64_t{0};

 private:
  int socket_ = -1;
  // What create() resolved, for bindSocket() and its failure text.
  AddressResolver::AddressList address{nullptr, &freeaddrinfo};
  std::string host_;
  std::string service_;
};
