#pragma once

#include <netdb.h>

#include <memory>
#include <string>

// The addresses of a host and service for a socket of the given family, type and protocol, as
// the resolver gives them; flags are the resolver's (AI_PASSIVE for an address to listen on).
class AddressResolver {
 public:
  using AddressList = std::unique_ptr<addrinfo, decltype(&freeaddrinfo)>;

  // Null when the host or service cannot be resolved.
  static AddressList resolve(int family, int socktype, int protocol, const std::string& host,
                             const std::string& service, int flags = 0);
};
