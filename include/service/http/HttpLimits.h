#pragma once

#include <cstddef>

// What a client accepts from a web service before it gives up on an answer: a server that never
// answers, trickles bytes, or announces a huge body ends the request with an error instead of a
// hang or an allocation of that size.
struct HttpLimits {
  std::size_t maxHeaderBytes = 64 * 1024;          // status line and header lines together
  std::size_t maxContentBytes = 64 * 1024 * 1024;  // the largest content-length accepted
  int timeoutMilliseconds = 30000;                 // connecting, and the whole answer
};
