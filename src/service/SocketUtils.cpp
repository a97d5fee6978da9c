#include "service/SocketUtils.h"

#include <poll.h>
#include <sys/socket.h>

#include <algorithm>
#include <cerrno>

#include "service/FrameError.h"

namespace {

// Milliseconds left before deadline, at least 0 and within what poll() takes.
int millisecondsLeft(SocketUtils::Clock::time_point deadline) {
  const auto left =
      std::chrono::duration_cast<std::chrono::milliseconds>(deadline - SocketUtils::Clock::now())
          .count();
  return static_cast<int>(std::clamp<long long>(left, 0, 1000LL * 60 * 60));
}

}  // namespace

int32_t SocketUtils::readIntFourBytes(uint64_t socket, Clock::time_point deadline) {
  unsigned char bytes[4];
  readExactly(socket, reinterpret_cast<char*>(bytes), sizeof(bytes), deadline);
  const uint32_t value = (uint32_t{bytes[0]} << 24) | (uint32_t{bytes[1]} << 16) |
                         (uint32_t{bytes[2]} << 8) | uint32_t{bytes[3]};
  return static_cast<int32_t>(value);
}

std::string SocketUtils::readNBytesAsString(std::size_t n, uint64_t socket,
                                            Clock::time_point deadline) {
  std::string value(n, '\0');
  readExactly(socket, value.data(), n, deadline);
  return value;
}

void SocketUtils::checkLength(int32_t length, std::size_t maximum) {
  if (length < 0) {
    throw FrameError("negative frame length " + std::to_string(length));
  }
  if (static_cast<std::size_t>(length) > maximum) {
    throw FrameError("frame length " + std::to_string(length) + " above the maximum " +
                     std::to_string(maximum));
  }
}

void SocketUtils::readExactly(uint64_t socket, char* buffer, std::size_t count,
                              Clock::time_point deadline) {
  const int descriptor = static_cast<int>(socket);
  std::size_t held = 0;
  while (held < count) {
    pollfd watched{descriptor, POLLIN, 0};
    const int ready = ::poll(&watched, 1, millisecondsLeft(deadline));
    if (ready < 0 && errno == EINTR) {
      continue;
    }
    if (ready < 0) {
      throw FrameError("read failed");
    }
    if (ready == 0) {
      throw FrameError("read timed out");
    }
    const ssize_t got = ::recv(descriptor, buffer + held, count - held, 0);
    if (got == 0) {
      throw FrameError("connection closed mid-frame");
    }
    if (got < 0) {
      if (errno == EINTR || errno == EAGAIN || errno == EWOULDBLOCK) {
        continue;
      }
      throw FrameError("read failed");
    }
    held += static_cast<std::size_t>(got);
  }
}
