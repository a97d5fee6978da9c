#include <chrono>
#include <thread>
#include <vector>

#include "ServiceSupport.h"

using namespace servicetest;

namespace {

const std::string failureLine = "An error hapenned in the parse of json <<<<<<<<";

// A short time limit and a small maximum length, so that the guards show quickly.
ServiceSettings guarded() {
  ServiceSettings settings;
  settings.maxFrameLength = 1024;
  settings.readTimeout = std::chrono::milliseconds(1500);
  return settings;
}

const std::string listReply = R"({ "projects": [{ "projname": "demo","sceneries": ["Base"] }] })";

// The service still answers a well-formed request.
void expectServing(int port) {
  const Reply reply = exchange(port, 2, "");
  EXPECT_TRUE(reply.received);
  EXPECT_EQ(reply.value, listReply);
}

}  // namespace

TEST_F(ServiceTest, AFrameOfLengthZeroReadsNothingAndIsServed) {
  LoopbackService service(folder, guarded(), 1);
  // Type 2, length 0, nothing after: a read of one more byte would wait for the time limit.
  const auto start = std::chrono::steady_clock::now();
  const Reply reply = exchangeBytes(service.port(), TlvSender::header(2, 0));
  EXPECT_EQ(reply.value, listReply);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(1500));
}

TEST_F(ServiceTest, MalformedFramesEndTheirConnectionAndLeaveTheServiceAndFilesAlone) {
  LoopbackService service(folder, guarded(), 1);
  const auto before = snapshot(folder.root());
  struct Case {
    const char* what;
    std::string bytes;
    const char* console;
  };
  const std::vector<Case> cases{
      {"unknown type", TlvSender::header(99, 2) + "{}",
       "RequestProcessingFactoryByEnumType::make(): invalid tlvType"},
      {"negative type", TlvSender::header(-1, 0), "invalid tlvType"},
      {"negative length", TlvSender::header(2, -5), "negative frame length -5"},
      {"huge length", TlvSender::header(2, 0x7fffffff),
       "frame length 2147483647 above the maximum 1024"},
      {"length above the maximum", TlvSender::header(2, 1025) + std::string(1025, ' '),
       "frame length 1025 above the maximum 1024"},
      {"not json", TlvSender::header(6, 5) + "{nope", failureLine.c_str()},
      {"json of another shape", TlvSender::header(6, 2) + "[]", failureLine.c_str()},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    EXPECT_FALSE(exchangeBytes(service.port(), c.bytes).received);
    expectServing(service.port());
  }
  const std::string console = service.stop();
  for (const auto& c : cases) {
    EXPECT_NE(console.find(c.console), std::string::npos) << c.what;
  }
  EXPECT_EQ(snapshot(folder.root()), before);
}

TEST_F(ServiceTest, APeerThatClosesMidFrameEndsOnlyItsConnection) {
  LoopbackService service(folder, guarded(), 1);
  for (const std::string& partial : {std::string("\0\0", 2), TlvSender::header(2, 3).substr(0, 6),
                                     TlvSender::header(6, 100) + R"({"projname": )"}) {
    SCOPED_TRACE(partial.size());
    auto client = connectTo(service.port());
    ASSERT_TRUE(client->sendMsg(partial));
    client->closeSocket();
    expectServing(service.port());
  }
  EXPECT_NE(service.stop().find("Connection ended: connection closed mid-frame"),
            std::string::npos);
}

TEST_F(ServiceTest, ATruncatedValueIsCutOffAtTheTimeLimit) {
  LoopbackService service(folder, guarded(), 1);
  auto client = connectTo(service.port());
  ASSERT_TRUE(client->sendMsg(TlvSender::header(2, 100) + "{}"));
  // The client keeps the connection open: the server gives up at its time limit.
  const Reply reply = readReply(*client);
  EXPECT_FALSE(reply.received);
  expectServing(service.port());
  EXPECT_NE(service.stop().find("Connection ended: read timed out"), std::string::npos);
}

TEST_F(ServiceTest, AClientSendingOneByteASecondIsCutOffWhileAnotherWorkerServes) {
  LoopbackService service(folder, guarded(), 2);
  const std::string frame = TlvSender::header(2, 2) + "{}";
  std::thread slow([&] {
    auto client = connectTo(service.port());
    for (char byte : frame) {
      if (!client->sendMsg(std::string(1, byte))) return;
      std::this_thread::sleep_for(std::chrono::seconds(1));
    }
  });
  std::this_thread::sleep_for(std::chrono::milliseconds(200));
  expectServing(service.port());
  slow.join();
  // The 10 bytes would take 10 s; the frame's time limit of 1.5 s ends the connection first.
  EXPECT_NE(service.stop().find("Connection ended: read timed out"), std::string::npos);
}

TEST_F(ServiceTest, NamesThatWouldLeaveTheFolderAreRefusedWithTheFailureLine) {
  LoopbackService service(folder, guarded(), 1);
  std::filesystem::create_directories(folder.root() / "inner");
  std::filesystem::copy(folder.file("demo.sjson"), folder.root() / "inner" / "x.sjson");
  const auto before = snapshot(folder.root());
  const std::vector<std::pair<int, std::string>> requests{
      {10, R"({"projname": "../demo"})"},
      {10, R"({"projname": "inner/x"})"},
      {10, R"({"projname": "inner\\x"})"},
      {10, R"({"projname": "/etc/passwd"})"},
      {10, R"({"projname": ".."})"},
      {10, R"({"projname": "demo\u0000"})"},
      {10, R"({"projname": ""})"},
      {10, R"({"projname": "demo", "code": "../.."})"},
      {10, R"({"projname": "demo", "code": "/"})"},
      {4, R"({"projname": "demo", "scenery": "../Base"})"},
      {6, R"({"projname": "demo", "scenery": "Base", "elementid": "../1", "serietypename": "x"})"},
      {6, R"({"projname": "demo", "scenery": "Base", "elementid": "1x", "serietypename": "x"})"},
      {0, R"({"projname": "demo", "sceneries": ["/Base"]})"},
  };
  for (const auto& [type, request] : requests) {
    SCOPED_TRACE(request);
    EXPECT_FALSE(exchange(service.port(), type, request).received);
  }
  expectServing(service.port());
  const std::string console = service.stop();
  EXPECT_NE(
      console.find(failureLine + "\nProjectLocation: projname \"../demo\" is not a plain name"),
      std::string::npos);
  EXPECT_NE(console.find(failureLine + "\nProjectLocation: projname \"demo\" is not a plain name"),
            std::string::npos);
  EXPECT_NE(console.find(failureLine + "\nProjectLocation: code \"../..\" is not a plain name"),
            std::string::npos);
  EXPECT_NE(
      console.find(failureLine + "\nProjectLocation: scenery \"../Base\" is not a plain name"),
      std::string::npos);
  EXPECT_NE(console.find(failureLine + "\nRequestProcessor: elementid \"1x\" is not a number"),
            std::string::npos);
  EXPECT_EQ(snapshot(folder.root()), before);
}

TEST_F(ServiceTest, AHundredConcurrentConnectionsAreAllAnswered) {
  LoopbackService service(folder, guarded(), 4);
  std::vector<Reply> replies(100);
  std::vector<std::thread> clients;
  for (std::size_t i = 0; i < replies.size(); ++i) {
    clients.emplace_back([&, i] {
      replies[i] = i % 2
                       ? exchange(service.port(), 2, "")
                       : exchange(service.port(), 4, R"({"projname": "demo", "scenery": "Base"})");
    });
  }
  for (auto& client : clients) client.join();
  for (std::size_t i = 0; i < replies.size(); ++i) {
    SCOPED_TRACE(i);
    ASSERT_TRUE(replies[i].received);
    EXPECT_EQ(replies[i].type, i % 2 ? 3 : 5);
  }
}
