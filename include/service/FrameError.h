#pragma once

#include <stdexcept>

// A frame that cannot be read to its end: the peer closed, stalled past the time limit, or
// announced a length the service refuses. The connection is ended; the server goes on.
class FrameError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};
