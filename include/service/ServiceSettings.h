#pragma once

#include <chrono>
#include <cstddef>

// What the host decides about the service's limits and rights.
struct ServiceSettings {
  // The largest value length a request may announce, in bytes.
  std::size_t maxFrameLength = std::size_t{64} * 1024 * 1024;
  // The time a whole request frame may take to arrive after the connection was taken up.
  std::chrono::milliseconds readTimeout{10000};
  // Whether the request that changes a series (type 8) is served.
  bool allowChanges = false;
};
