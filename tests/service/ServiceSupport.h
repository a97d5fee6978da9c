#pragma once

#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unzip.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <thread>

#include "core/ConfigurationHeader.h"
#include "managers/ProjectFunctions.h"
#include "project/database/SaveProject.h"
#include "scenario/ScenarioManager.h"
#include "service/ServiceLog.h"
#include "service/SocketClient.h"
#include "service/SocketUtils.h"
#include "service/TlvSender.h"
#include "service/TlvService.h"
#include "support/RealisticNetwork.h"
#include "support/TemporaryFolder.h"

namespace servicetest {

inline std::string bytesOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return std::string((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
}

// The realistic network over 1931, its scenario named "Base", one reservoir placed at x 10.5 and
// y -8.25, saved as "demo.sjson" with one stored run. Made once per test program.
inline const TemporaryFolder& pristineProject() {
  static const TemporaryFolder folder("kova_service_pristine_");
  static const bool made = [] {
    RealisticNetwork network(
        Interval(Date(1931, 1, 1), Date(1931, 12, 1), Vocabulary::of(Periodicity::monthly)));
    network.net.scenario->setName("Base");
    network.reservoirs.front()->setX(10.5);
    network.reservoirs.front()->setY(-8.25);
    ScenarioManager::getInstance().clear();
    ScenarioManager::getInstance().addScenery(0, network.net.scenario);
    const bool saved = SaveProject::saveAs(folder.file("demo.sjson"), nullptr);
    const bool ran =
        ScenarioManager::getInstance().executeScenery(0, nullptr, [](long, long) { return true; });
    ProjectFunctions::closeProject();
    return saved && ran;
  }();
  EXPECT_TRUE(made);
  return folder;
}

// The bytes of every file under folder, by relative path.
inline std::map<std::string, std::string> snapshot(const std::filesystem::path& folder) {
  std::map<std::string, std::string> files;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
    if (entry.is_regular_file()) {
      files[std::filesystem::relative(entry.path(), folder).string()] = bytesOf(entry.path());
    }
  }
  return files;
}

// What a client got back: the reply frame, or nothing when the server closed without one.
struct Reply {
  bool received = false;
  int type = -1;
  std::string value;
};

// A connection to the service on loopback.
inline std::unique_ptr<SocketClient> connectTo(int port) {
  auto client = std::make_unique<SocketClient>();
  client->create(AF_INET, SOCK_STREAM, IPPROTO_TCP, "127.0.0.1", std::to_string(port));
  EXPECT_TRUE(client->connectTo());
  return client;
}

// Reads the reply frame of a connection; received is false when it closed without one.
inline Reply readReply(SocketClient& client) {
  Reply reply;
  const auto deadline = SocketUtils::Clock::now() + std::chrono::seconds(60);
  try {
    reply.type = SocketUtils::readIntFourBytes(client.getSocket(), deadline);
    const int32_t length = SocketUtils::readIntFourBytes(client.getSocket(), deadline);
    reply.value = SocketUtils::readNBytesAsString(static_cast<std::size_t>(length),
                                                  client.getSocket(), deadline);
    reply.received = true;
  } catch (const std::exception&) {
    reply.received = false;
  }
  return reply;
}

// Sends raw bytes on a new connection and reads the reply.
inline Reply exchangeBytes(int port, const std::string& bytes) {
  auto client = connectTo(port);
  EXPECT_TRUE(client->sendMsg(bytes));
  return readReply(*client);
}

// Sends one request frame of type with message and reads the reply.
inline Reply exchange(int port, int type, const std::string& message) {
  return exchangeBytes(port, TlvSender::header(type, static_cast<int>(message.size())) + message);
}

// The entries of a zip archive given as bytes, by name, read back with minizip.
inline std::map<std::string, std::string> unzipEntries(const std::string& archive,
                                                       const TemporaryFolder& folder) {
  const std::string path = folder.file("reply.zip");
  std::ofstream(path, std::ios::binary) << archive;
  std::map<std::string, std::string> entries;
  unzFile zip = unzOpen64(path.c_str());
  EXPECT_NE(zip, nullptr);
  if (zip == nullptr) return entries;
  for (int at = unzGoToFirstFile(zip); at == UNZ_OK; at = unzGoToNextFile(zip)) {
    char name[512];
    unz_file_info64 info{};
    unzGetCurrentFileInfo64(zip, &info, name, sizeof(name), nullptr, 0, nullptr, 0);
    std::string bytes(info.uncompressed_size, '\0');
    EXPECT_EQ(unzOpenCurrentFile(zip), UNZ_OK);
    EXPECT_EQ(unzReadCurrentFile(zip, bytes.data(), static_cast<unsigned>(bytes.size())),
              static_cast<int>(bytes.size()));
    EXPECT_EQ(unzCloseCurrentFile(zip), UNZ_OK);
    entries[name] = bytes;
  }
  unzClose(zip);
  std::filesystem::remove(path);
  return entries;
}

// The service on a free loopback port, over a copy of the pristine project (at the folder's top
// and under "personalized/c7"), its console kept for the test.
class LoopbackService {
 public:
  LoopbackService(const TemporaryFolder& folder, const ServiceSettings& settings, int workers)
      : log(console), service(folder.root().string(), settings, log) {
    for (const auto& name : {"demo.sjson", "demo.sjson.sqlite"}) {
      std::filesystem::copy(pristineProject().file(name), folder.file(name));
      std::filesystem::create_directories(folder.root() / "personalized" / "c7");
      std::filesystem::copy(pristineProject().file(name),
                            folder.root() / "personalized" / "c7" / name);
    }
    service.start("127.0.0.1", "0", workers);
    accepting = std::thread([this] { service.run([this] { return stopping.load(); }); });
  }
  ~LoopbackService() { stop(); }

  int port() const { return service.getPort(); }
  // Stops accepting, lets the workers finish and gives the console.
  std::string stop() {
    stopping = true;
    if (accepting.joinable()) accepting.join();
    return console.str();
  }

 private:
  std::ostringstream console;
  ServiceLog log;
  TlvService service;
  std::atomic<bool> stopping{false};
  std::thread accepting;
};

// Each test starts from a closed project and a folder of its own.
class ServiceTest : public ::testing::Test {
 protected:
  void SetUp() override { pristineProject(); }
  void TearDown() override { ProjectFunctions::closeProject(); }

  TemporaryFolder folder{"kova_service_"};
};

}  // namespace servicetest
