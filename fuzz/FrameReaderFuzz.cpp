#include <sys/socket.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "service/ConsumerThread.h"
#include "service/ServiceLog.h"

// Feeds arbitrary bytes as one connection to a worker of the service: the frame reader, the
// length guard, the factory of processors and the processors' parsing of the request. Any input
// must end that connection (a reply, or none), never in a crash, a hang or a leak. The folder
// served holds one small project file without a database, so that the list request reads a
// project and the others fail on the way to the database.
namespace {

std::string servedFolder() {
  // One folder for every run: libFuzzer's exit leaves it, and the next run takes it over.
  const auto folder = std::filesystem::temp_directory_path() / "kova_frame_fuzz";
  std::filesystem::create_directories(folder);
  std::ofstream(folder / "p.sjson") << R"({"scenarios": [{"name": "S"}]})";
  return folder.string();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
  // Stays within what one socket buffer takes, so that the write below never blocks.
  if (size > 65536) return 0;
  static const std::string folder = servedFolder();
  static std::ostringstream sink;
  static ServiceLog log(sink);
  static wqueue<SocketContainer> queue;
  static ServiceSettings settings = [] {
    ServiceSettings chosen;
    chosen.maxFrameLength = 65536;
    chosen.readTimeout = std::chrono::milliseconds(50);
    return chosen;
  }();
  static ConsumerThread worker(queue, folder, settings, log);

  int ends[2];
  if (socketpair(AF_UNIX, SOCK_STREAM, 0, ends) != 0) std::abort();
  if (size > 0 && write(ends[0], data, size) != static_cast<ssize_t>(size)) std::abort();
  shutdown(ends[0], SHUT_WR);
  worker.serveConnection(static_cast<uint64_t>(ends[1]), 0);
  close(ends[0]);
  sink.str("");
  return 0;
}
