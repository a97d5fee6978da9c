#include "service/SocketServer.h"

#include <netdb.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <memory>
#include <stdexcept>

#include "service/AddressResolver.h"

namespace {

// The address to listen on. Throws std::runtime_error "SocketServer::create(): cannot resolve
// <host>:<service>" when there is none.
AddressResolver::AddressList passiveAddress(int family, int socktype, int protocol,
                                            const std::string& host, const std::string& service) {
  auto address = AddressResolver::resolve(family, socktype, protocol, host, service, AI_PASSIVE);
  if (!address) {
    throw std::runtime_error("SocketServer::create(): cannot resolve " + host + ":" + service);
  }
  return address;
}

}  // namespace

SocketServer::~SocketServer() { closeSocket(); }

void SocketServer::create(int family, int socktype, int protocol, const std::string& service,
                          const std::string& host) {
  closeSocket();
  AddressResolver::AddressList resolved = passiveAddress(family, socktype, protocol, host, service);
  socket_ = ::socket(resolved->ai_family, resolved->ai_socktype, resolved->ai_protocol);
  if (socket_ < 0) {
    throw std::runtime_error("SocketServer::create(): cannot open a socket");
  }
  const int yes = 1;
  ::setsockopt(socket_, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof(yes));
  address = std::move(resolved);
  host_ = host;
  service_ = service;
}

void SocketServer::bindSocket() {
  if (!address || ::bind(socket_, address->ai_addr, address->ai_addrlen) != 0) {
    throw std::runtime_error("SocketServer::bindSocket(): cannot bind " + host_ + ":" + service_ +
                             " (" + std::strerror(errno) + ")");
  }
}

void SocketServer::listenSocket() {
  if (::listen(socket_, SOMAXCONN) != 0) {
    throw std::runtime_error(std::string("SocketServer::listenSocket(): ") + std::strerror(errno));
  }
}

uint64_t SocketServer::acceptConnection(int timeoutMilliseconds) {
  pollfd watched{socket_, POLLIN, 0};
  if (::poll(&watched, 1, timeoutMilliseconds) <= 0) {
    return invalidSocket;
  }
  const int accepted = ::accept(socket_, nullptr, nullptr);
  return accepted < 0 ? invalidSocket : static_cast<uint64_t>(accepted);
}

int SocketServer::getPort() const {
  sockaddr_storage address{};
  socklen_t size = sizeof(address);
  if (::getsockname(socket_, reinterpret_cast<sockaddr*>(&address), &size) != 0) {
    return -1;
  }
  if (address.ss_family == AF_INET6) {
    return ntohs(reinterpret_cast<const sockaddr_in6*>(&address)->sin6_port);
  }
  return ntohs(reinterpret_cast<const sockaddr_in*>(&address)->sin_port);
}

void SocketServer::closeSocket() {
  if (socket_ >= 0) {
    ::close(socket_);
    socket_ = -1;
  }
}
