#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include <string>

#include "service/SocketClient.h"
#include "service/http/HttpResponseManager.h"
#include "support/ExpectThrow.h"

namespace {

// A connected pair: the client end that the manager reads, and the peer end the test writes.
class Exchange {
 public:
  Exchange() {
    int ends[2];
    if (::socketpair(AF_UNIX, SOCK_STREAM, 0, ends) != 0) throw std::runtime_error("socketpair");
    client = std::make_unique<SocketClient>(static_cast<uint64_t>(ends[0]));
    peer = ends[1];
  }
  ~Exchange() { closePeer(); }

  void write(const std::string& bytes) const {
    ASSERT_EQ(::write(peer, bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
  }
  void closePeer() {
    if (peer >= 0) ::close(peer);
    peer = -1;
  }

  std::unique_ptr<SocketClient> client;
  int peer = -1;
};

HttpLimits smallLimits() {
  HttpLimits limits;
  limits.maxHeaderBytes = 128;
  limits.maxContentBytes = 64;
  limits.timeoutMilliseconds = 200;
  return limits;
}

}  // namespace

TEST(HttpResponseManagerTest, ReadsTheLinesAndThenExactlyTheAnnouncedContent) {
  Exchange exchange;
  // The content that follows is 7 bytes; what comes after it belongs to no one.
  exchange.write("HTTP/1.1 200 OK\r\nServer: t\r\nCONTENT-LENGTH:  7 \r\n\r\n{\"a\":1}rest");
  HttpResponseManager reader(*exchange.client, smallLimits());
  const auto lines = reader.makeHttpResponseLines();
  ASSERT_EQ(lines,
            (std::vector<std::string>{"HTTP/1.1 200 OK", "Server: t", "CONTENT-LENGTH:  7 "}));
  const std::size_t length = HttpResponseManager::contentLengthOf(lines, 64);
  EXPECT_EQ(length, 7u);
  EXPECT_EQ(reader.makeHttpResponseContent(length), "{\"a\":1}");
}

TEST(HttpResponseManagerTest, TakesBareLineFeedsAndContentThatComesLater) {
  Exchange exchange;
  exchange.write("HTTP/1.1 200 OK\nContent-Length: 10\n\n01234");
  HttpResponseManager reader(*exchange.client, smallLimits());
  const auto lines = reader.makeHttpResponseLines();
  EXPECT_EQ(lines.size(), 2u);
  exchange.write("56789");
  EXPECT_EQ(reader.makeHttpResponseContent(HttpResponseManager::contentLengthOf(lines, 64)),
            "0123456789");
}

TEST(HttpResponseManagerTest, HeaderLinesEndWithTheirTextWhenTheyFail) {
  const std::string text = "Error: recv HTTP data.";
  struct Case {
    const char* what;
    std::string bytes;
    bool close;
  };
  const std::vector<Case> cases{
      {"the peer says nothing within the time", "", false},
      {"the peer closes before the blank line", "HTTP/1.1 200 OK\r\nA: b\r\n", true},
      {"the lines pass the bound", "HTTP/1.1 200 OK\r\nX: " + std::string(200, 'x') + "\r\n\r\n",
       false},
      {"a line longer than the bound, without end", "HTTP/1.1 200 OK" + std::string(200, 'x'),
       false},
      {"no status line", "hello\r\n\r\n", false},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    Exchange exchange;
    exchange.write(c.bytes);
    if (c.close) exchange.closePeer();
    HttpResponseManager reader(*exchange.client, smallLimits());
    EXPECT_THROW_TEXT(reader.makeHttpResponseLines(), std::runtime_error, text);
  }
}

TEST(HttpResponseManagerTest, ContentEndsWithItsTextWhenItFails) {
  const std::string text = "Error in recv HTTP content";
  {
    SCOPED_TRACE("the peer closes before the whole content");
    Exchange exchange;
    exchange.write("HTTP/1.1 200 OK\r\n\r\nabc");
    exchange.closePeer();
    HttpResponseManager reader(*exchange.client, smallLimits());
    reader.makeHttpResponseLines();
    EXPECT_THROW_TEXT(reader.makeHttpResponseContent(10), std::runtime_error, text);
  }
  {
    SCOPED_TRACE("the content stops coming");
    Exchange exchange;
    exchange.write("HTTP/1.1 200 OK\r\n\r\nabc");
    HttpResponseManager reader(*exchange.client, smallLimits());
    reader.makeHttpResponseLines();
    EXPECT_THROW_TEXT(reader.makeHttpResponseContent(10), std::runtime_error, text);
  }
  {
    SCOPED_TRACE("a length above the bound is refused before any read");
    Exchange exchange;
    HttpResponseManager reader(*exchange.client, smallLimits());
    EXPECT_THROW_TEXT(reader.makeHttpResponseContent(65), std::runtime_error, text);
  }
}

TEST(HttpResponseManagerTest, TheContentLengthIsAWholeNumberWithinTheBound) {
  const std::string text = "Error in recv HTTP content";
  EXPECT_EQ(HttpResponseManager::contentLengthOf({"HTTP/1.1 200 OK", "Other: 5"}, 64), 0u);
  EXPECT_EQ(HttpResponseManager::contentLengthOf({"content-length:64"}, 64), 64u);
  for (const std::string value :
       {"65", "", "-1", "1e3", "12 34", "0x10", "99999999999999999999999999999999"}) {
    SCOPED_TRACE(value);
    EXPECT_THROW_TEXT(HttpResponseManager::contentLengthOf({"Content-Length: " + value}, 64),
                      std::runtime_error, text);
  }
}

TEST(HttpResponseManagerTest, TheStatusCodeIsTheNumberAfterTheVersion) {
  EXPECT_EQ(HttpResponseManager::statusCodeOf("HTTP/1.1 400 Bad request"), 400);
  EXPECT_EQ(HttpResponseManager::statusCodeOf("HTTP/1.0 200 OK"), 200);
  EXPECT_EQ(HttpResponseManager::statusCodeOf("HTTP/1.1 20"), 0);
  EXPECT_EQ(HttpResponseManager::statusCodeOf("HTTP/1.1 2x0 OK"), 0);
  EXPECT_EQ(HttpResponseManager::statusCodeOf("ICY 200 OK"), 0);
}
