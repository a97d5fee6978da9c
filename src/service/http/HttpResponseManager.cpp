#include "service/http/HttpResponseManager.h"

#include <algorithm>
#include <stdexcept>

#include "common/StringUtils.h"
#include "service/SocketClient.h"

namespace {

const char* const kRecvDataError = "Error: recv HTTP data.";
const char* const kRecvContentError = "Error in recv HTTP content";
constexpr std::size_t kChunkBytes = 16 * 1024;

std::string lowerCase(std::string text) {
  for (char& c : text) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return text;
}

// The whole number of text, refused above maxBytes; digits only, blanks around them allowed.
std::size_t byteCount(const std::string& text, std::size_t maxBytes) {
  const std::string digits = StringUtils::trim(text);
  if (digits.empty()) throw std::runtime_error(kRecvContentError);
  std::size_t value = 0;
  for (const char c : digits) {
    if (c < '0' || c > '9') throw std::runtime_error(kRecvContentError);
    value = value * 10 + static_cast<std::size_t>(c - '0');
    if (value > maxBytes) throw std::runtime_error(kRecvContentError);
  }
  return value;
}

}  // namespace

HttpResponseManager::HttpResponseManager(SocketClient& socket, const HttpLimits& limits)
    : socket(socket),
      limits(limits),
      deadline(std::chrono::steady_clock::now() +
               std::chrono::milliseconds(limits.timeoutMilliseconds)) {}

std::vector<std::string> HttpResponseManager::makeHttpResponseLines() {
  std::vector<std::string> lines;
  std::size_t consumed = 0;
  for (;;) {
    std::size_t end;
    while ((end = pending.find('\n')) != std::string::npos) {
      consumed += end + 1;
      if (consumed > limits.maxHeaderBytes) throw std::runtime_error(kRecvDataError);
      std::string line = pending.substr(0, end);
      pending.erase(0, end + 1);
      if (!line.empty() && line.back() == '\r') line.pop_back();
      if (line.empty()) {
        if (lines.empty() || !StringUtils::startsWith(lines.front(), "HTTP/")) {
          throw std::runtime_error(kRecvDataError);
        }
        return lines;
      }
      lines.push_back(std::move(line));
    }
    if (consumed + pending.size() > limits.maxHeaderBytes || !receiveMore(kChunkBytes)) {
      throw std::runtime_error(kRecvDataError);
    }
  }
}

std::string HttpResponseManager::makeHttpResponseContent(std::size_t length) {
  if (length > limits.maxContentBytes) throw std::runtime_error(kRecvContentError);
  while (pending.size() < length) {
    if (!receiveMore(std::min(kChunkBytes, length - pending.size()))) {
      throw std::runtime_error(kRecvContentError);
    }
  }
  std::string content = pending.substr(0, length);
  pending.erase(0, length);
  return content;
}

std::size_t HttpResponseManager::contentLengthOf(const std::vector<std::string>& lines,
                                                 std::size_t maxBytes) {
  const std::string name = "content-length:";
  for (const auto& line : lines) {
    if (StringUtils::startsWith(lowerCase(line.substr(0, name.size())), name)) {
      return byteCount(line.substr(name.size()), maxBytes);
    }
  }
  return 0;
}

int HttpResponseManager::statusCodeOf(const std::string& statusLine) {
  const auto blank = statusLine.find(' ');
  if (!StringUtils::startsWith(statusLine, "HTTP/") || blank == std::string::npos ||
      statusLine.size() < blank + 4) {
    return 0;
  }
  int code = 0;
  for (std::size_t i = blank + 1; i < blank + 4; ++i) {
    const char c = statusLine[i];
    if (c < '0' || c > '9') return 0;
    code = code * 10 + (c - '0');
  }
  return code;
}

bool HttpResponseManager::receiveMore(std::size_t maxBytes) {
  const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
                        deadline - std::chrono::steady_clock::now())
                        .count();
  if (left <= 0 || !socket.setReceiveTimeout(static_cast<int>(left))) return false;
  char buffer[kChunkBytes];
  const long count = socket.recvMsg(buffer, std::min(maxBytes, sizeof(buffer)));
  if (count <= 0) return false;
  pending.append(buffer, static_cast<std::size_t>(count));
  return true;
}
