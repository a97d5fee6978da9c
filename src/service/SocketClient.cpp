#include "service/SocketClient.h"

#include <netdb.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

#include <cerrno>
#include <memory>
#include <stdexcept>

#include "service/AddressResolver.h"

SocketClient::SocketClient(uint64_t socket) : socket_(socket) {}

SocketClient::~SocketClient() { closeSocket(); }

void SocketClient::create(int family, int socktype, int protocol, const std::string& host,
                          const std::string& port) {
  closeSocket();
  AddressResolver::AddressList resolved =
      AddressResolver::resolve(family, socktype, protocol, host, port);
  if (!resolved) {
    throw std::runtime_error("Error: invalid socket.");
  }
  int descriptor = ::socket(resolved->ai_family, resolved->ai_socktype, resolved->ai_protocol);
  if (descriptor < 0) {
    throw std::runtime_error("Error: invalid socket.");
  }
  socket_ = static_cast<uint64_t>(descriptor);
  addresses = std::move(resolved);
}

bool SocketClient::connectTo() {
  if (socket_ == invalidSocket) {
    return false;
  }
  for (addrinfo* address = addresses.get(); address != nullptr; address = address->ai_next) {
    if (::connect(static_cast<int>(socket_), address->ai_addr, address->ai_addrlen) == 0) {
      return true;
    }
  }
  return false;
}

bool SocketClient::sendMsg(const std::string& message) {
  std::size_t sent = 0;
  while (sent < message.size()) {
    // MSG_NOSIGNAL: a peer that went away must give an error here, not kill the process.
    ssize_t count = ::send(static_cast<int>(socket_), message.data() + sent, message.size() - sent,
                           MSG_NOSIGNAL);
    if (count < 0 && errno == EINTR) {
      continue;
    }
    if (count <= 0) {
      return false;
    }
    sent += static_cast<std::size_t>(count);
  }
  return true;
}

long SocketClient::recvMsg(char* buffer, std::size_t maxBytes) {
  for (;;) {
    ssize_t count = ::recv(static_cast<int>(socket_), buffer, maxBytes, 0);
    if (count < 0 && errno == EINTR) {
      continue;
    }
    return count < 0 ? -1 : static_cast<long>(count);
  }
}

bool SocketClient::setReceiveTimeout(int milliseconds) {
  timeval limit{};
  limit.tv_sec = milliseconds / 1000;
  limit.tv_usec = (milliseconds % 1000) * 1000;
  return ::setsockopt(static_cast<int>(socket_), SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof(limit)) ==
         0;
}

void SocketClient::closeSocket() {
  if (socket_ != invalidSocket) {
    ::close(static_cast<int>(socket_));
    socket_ = invalidSocket;
  }
}

uint64_t SocketClient::getSocket() const { return socket_; }

uint64_t SocketClient::release() {
  uint64_t socket = socket_;
  socket_ = invalidSocket;
  return socket;
}
