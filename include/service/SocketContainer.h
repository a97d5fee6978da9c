#pragma once

#include <cstdint>

// An item of the queue of connections: one accepted socket, or the stop mark that tells the
// worker taking it to end.
class SocketContainer {
 public:
  // The stop mark.
  SocketContainer() = default;
  explicit SocketContainer(uint64_t socket);

  uint64_t getSocket() const { return socket; }
  bool isStopMark() const { return socket == stopMark; }

 private:
  static constexpr uint64_t stopMark = ~uint64_t{0};
  uint64_t socket = stopMark;
};
