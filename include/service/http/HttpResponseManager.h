#pragma once

#include <chrono>
#include <cstddef>
#include <string>
#include <vector>

#include "service/http/HttpLimits.h"

class SocketClient;

// Reads one HTTP/1.1 answer from a connected socket, within the limits given: the header lines
// first, then exactly the bytes of the content. Bytes of the content that arrive with the last
// header lines are kept for makeHttpResponseContent. The whole answer must arrive within
// limits.timeoutMilliseconds of the construction of the manager, however slowly it trickles.
class HttpResponseManager {
 public:
  HttpResponseManager(SocketClient& socket, const HttpLimits& limits);

  // The status line and the header lines, up to the blank line that ends them, without their
  // "\r\n" (a bare "\n" is accepted too). Throws std::runtime_error "Error: recv HTTP data." when
  // the peer closes or fails, the time runs out, the lines pass limits.maxHeaderBytes, or the
  // first line is not an HTTP status line.
  std::vector<std::string> makeHttpResponseLines();
  // The next length bytes of the answer. Throws std::runtime_error "Error in recv HTTP content"
  // when length passes limits.maxContentBytes (before reading anything), or when the peer closes
  // or fails or the time runs out before length bytes came.
  std::string makeHttpResponseContent(std::size_t length);

  // The value of the "content-length:" line of lines (the name in any case), 0 when there is
  // none. Throws std::runtime_error "Error in recv HTTP content" when the value is not a whole
  // number of bytes or passes maxBytes.
  static std::size_t contentLengthOf(const std::vector<std::string>& lines, std::size_t maxBytes);
  // The status code of a status line, "HTTP/1.1 400 Bad request" -> 400; 0 when there is none.
  static int statusCodeOf(const std::string& statusLine);

 private:
  // Appends what the socket gives to pending; false when the peer closed or failed, or the time
  // ran out.
  bool receiveMore(std::size_t maxBytes);

  SocketClient& socket;
  HttpLimits limits;
  std::chrono::steady_clock::time_point deadline;
  std::string pending;
};
