#include "service/AddressResolver.h"

AddressResolver::AddressList AddressResolver::resolve(int family, int socktype, int protocol,
                                                      const std::string& host,
                                                      const std::string& service, int flags) {
  addrinfo hints{};
  hints.ai_family = family;
  hints.ai_socktype = socktype;
  hints.ai_protocol = protocol;
  hints.ai_flags = flags;
  addrinfo* found = nullptr;
  if (getaddrinfo(host.c_str(), service.c_str(), &hints, &found) != 0) found = nullptr;
  return AddressList(found, &freeaddrinfo);
}
