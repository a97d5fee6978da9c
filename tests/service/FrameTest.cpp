#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <thread>
#include <typeinfo>

#include "service/EnumTlvTypeFactoryByIntegerType.h"
#include "service/FrameError.h"
#include "service/OpenExecuteAndReturnResultsRequestProcessor.h"
#include "service/RequestListAvailableRequestProcessor.h"
#include "service/RequestModifySerieOfElementRequestProcessor.h"
#include "service/RequestProcessingFactoryByEnumType.h"
#include "service/RequestProjectRequestProcessor.h"
#include "service/RequestSceneryNetworkRequestProcessor.h"
#include "service/RequestSerieOfElementRequestProcessor.h"
#include "service/ResponseRequestProcessors.h"
#include "service/SocketClient.h"
#include "service/SocketUtils.h"
#include "service/TlvSender.h"
#include "support/ExpectThrow.h"

namespace {

// Two connected stream sockets; the first is written by the test, the second read.
class SocketPair {
 public:
  SocketPair() { EXPECT_EQ(socketpair(AF_UNIX, SOCK_STREAM, 0, ends), 0); }
  ~SocketPair() {
    for (int end : ends)
      if (end >= 0) close(end);
  }
  void write(const std::string& bytes) {
    ASSERT_EQ(::write(ends[0], bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
  }
  void closeWriter() {
    close(ends[0]);
    ends[0] = -1;
  }
  uint64_t reader() const { return static_cast<uint64_t>(ends[1]); }
  int writer() const { return ends[0]; }

 private:
  int ends[2]{-1, -1};
};

SocketUtils::Clock::time_point soon() {
  return SocketUtils::Clock::now() + std::chrono::milliseconds(300);
}

}  // namespace

TEST(FrameTest, TheHeaderIsTypeThenLengthBigEndian) {
  // 6 = 00 00 00 06; 258 = 256 + 2 = 00 00 01 02; -2 = ff ff ff fe.
  EXPECT_EQ(TlvSender::header(6, 258), std::string("\0\0\0\x06\0\0\x01\x02", 8));
  EXPECT_EQ(TlvSender::header(-2, 0), std::string("\xff\xff\xff\xfe\0\0\0\0", 8));
}

TEST(FrameTest, AFrameSentIsReadBackWhole) {
  SocketPair pair;
  SocketClient sender(static_cast<uint64_t>(pair.writer()));
  const std::string message = "{\"projname\": \"Três Marias\"}";
  ASSERT_TRUE(TlvSender::sendTlv(TLV(6, 0, message), sender));
  sender.release();
  EXPECT_EQ(SocketUtils::readIntFourBytes(pair.reader(), soon()), 6);
  const int32_t length = SocketUtils::readIntFourBytes(pair.reader(), soon());
  // The length sent is the message's own, whatever the TLV held.
  EXPECT_EQ(length, static_cast<int32_t>(message.size()));
  EXPECT_EQ(SocketUtils::readNBytesAsString(length, pair.reader(), soon()), message);
}

TEST(FrameTest, ANegativeNumberIsReadAsSuch) {
  SocketPair pair;
  pair.write(std::string("\xff\xff\xff\xfb", 4));
  EXPECT_EQ(SocketUtils::readIntFourBytes(pair.reader(), soon()), -5);
}

TEST(FrameTest, ReadsThatCannotFinishSayWhy) {
  {
    SocketPair pair;
    pair.write("ab");
    EXPECT_THROW_TEXT(SocketUtils::readIntFourBytes(pair.reader(), soon()), FrameError,
                      "read timed out");
  }
  {
    SocketPair pair;
    pair.write("abc");
    pair.closeWriter();
    EXPECT_THROW_TEXT(SocketUtils::readNBytesAsString(4, pair.reader(), soon()), FrameError,
                      "connection closed mid-frame");
  }
  SocketPair pair;
  EXPECT_EQ(SocketUtils::readNBytesAsString(0, pair.reader(), soon()), "");
}

TEST(FrameTest, TheDeadlineHoldsForTheWholeValueNotEachRead) {
  SocketPair pair;
  std::thread drip([&] {
    for (int i = 0; i < 8; ++i) {
      pair.write("x");
      std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
  });
  // Each byte comes within 100 ms, but all 8 need 800 ms: the 300 ms deadline ends the read.
  EXPECT_THROW_TEXT(SocketUtils::readNBytesAsString(8, pair.reader(), soon()), FrameError,
                    "read timed out");
  drip.join();
}

TEST(FrameTest, LengthsOutsideZeroToTheMaximumAreRefused) {
  EXPECT_NO_THROW(SocketUtils::checkLength(0, 10));
  EXPECT_NO_THROW(SocketUtils::checkLength(10, 10));
  EXPECT_THROW_TEXT(SocketUtils::checkLength(11, 10), FrameError,
                    "frame length 11 above the maximum 10");
  EXPECT_THROW_TEXT(SocketUtils::checkLength(-1, 10), FrameError, "negative frame length -1");
}

TEST(FrameTest, EveryFrameTypeHasItsDescriptionAndItsProcessor) {
  const std::vector<std::pair<int, std::string>> processors{
      {0, typeid(OpenExecuteAndReturnResultsRequestProcessor).name()},
      {1, typeid(ResponseToOpenExecuteAndReturnResultsRequestProcessor).name()},
      {2, typeid(RequestListAvailableRequestProcessor).name()},
      {3, typeid(ResponseListOfAvailableRequestProcessor).name()},
      {4, typeid(RequestSceneryNetworkRequestProcessor).name()},
      {5, typeid(ResponseToSceneryNetworkRequestProcessor).name()},
      {6, typeid(RequestSerieOfElementRequestProcessor).name()},
      {7, typeid(ResponseSerieOfElementRequestProcessor).name()},
      {8, typeid(RequestModifySerieOfElementRequestProcessor).name()},
      {9, typeid(ResponseModifySerieOfElementRequestProcessor).name()},
      {10, typeid(RequestProjectRequestProcessor).name()},
      {11, typeid(ResponseProjectRequestProcessor).name()},
  };
  ASSERT_EQ(EnumTlvTypeFactoryByIntegerType::keys().size(), processors.size());
  for (const auto& [type, name] : processors) {
    SCOPED_TRACE(type);
    const EnumTlvType kind = EnumTlvTypeFactoryByIntegerType::make(type);
    EXPECT_EQ(kind.getId(), type);
    EXPECT_EQ(EnumTlvTypeFactoryByIntegerType::findByDescription(kind.getName()), kind);
    const auto processor =
        RequestProcessingFactoryByEnumType::make(Requisition(0, TLV(type, 0, "")));
    const RequestProcessor& made = *processor;
    EXPECT_EQ(typeid(made).name(), name);
  }
  EXPECT_EQ(EnumTlvTypeFactoryByIntegerType::make(8).getName(),
            "Requisitar alt. em serie de elemento");
  EXPECT_THROW_TEXT(EnumTlvTypeFactoryByIntegerType::make(12), std::invalid_argument,
                    "Error: invalid tlvTypeAsInteger.");
  EXPECT_THROW_TEXT(RequestProcessingFactoryByEnumType::make(Requisition(0, TLV(-1, 0, ""))),
                    std::invalid_argument,
                    "RequestProcessingFactoryByEnumType::make(): invalid tlvType");
}

TEST(FrameTest, AReplyProcessorDoesNothingButAnswerError) {
  SocketPair pair;
  ResponseProjectRequestProcessor processor(Requisition(pair.reader(), TLV(11, 0, "")));
  EXPECT_EQ(processor.process(), "<error>");
  // Nothing came back to the client's end.
  char byte;
  EXPECT_EQ(recv(pair.writer(), &byte, 1, MSG_DONTWAIT), -1);
  EXPECT_EQ(errno, EAGAIN);
}

TEST(FrameTest, AClientOfAnUnknownHostIsAnInvalidSocket) {
  SocketClient client;
  EXPECT_THROW_TEXT(client.create(AF_INET, SOCK_STREAM, 0, "no-such-host.invalid", "80"),
                    std::runtime_error, "Error: invalid socket.");
  EXPECT_EQ(client.getSocket(), SocketClient::invalidSocket);
}
