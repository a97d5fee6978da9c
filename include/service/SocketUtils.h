#pragma once

#include <chrono>
#include <cstdint>
#include <string>

// Reading the parts of a frame from a connected socket. Every read is bounded by a deadline so
// that a peer that stalls, drips bytes or closes half-way ends its own connection and nothing
// else: each failure throws FrameError with a one-line reason.
class SocketUtils {
 public:
  using Clock = std::chrono::steady_clock;

  // Reads 4 bytes and gives them as a signed big-endian integer. Throws FrameError
  // "connection closed mid-frame" when the peer closes first, "read timed out" when the
  // deadline passes, "read failed" on a socket error.
  static int32_t readIntFourBytes(uint64_t socket, Clock::time_point deadline);
  // Reads exactly n bytes (none for n = 0). Throws FrameError as readIntFourBytes.
  static std::string readNBytesAsString(std::size_t n, uint64_t socket, Clock::time_point deadline);
  // Checks an announced value length against the service's maximum in bytes. Throws FrameError
  // "negative frame length <n>" or "frame length <n> above the maximum <max>".
  static void checkLength(int32_t length, std::size_t maximum);

 private:
  // Fills buffer[0, count) from socket before deadline.
  static void readExactly(uint64_t socket, char* buffer, std::size_t count,
                          Clock::time_point deadline);
};
