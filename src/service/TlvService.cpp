#include "service/TlvService.h"

#include <netdb.h>
#include <sys/socket.h>

#include <stdexcept>

TlvService::TlvService(std::string folder, const ServiceSettings& settings, ServiceLog& log)
    : folder(std::move(folder)), settings(settings), log(log) {}

TlvService::~TlvService() { stopWorkers(); }

void TlvService::start(const std::string& address, const std::string& port, int workers) {
  server.create(AF_UNSPEC, SOCK_STREAM, IPPROTO_TCP, port, address);
  server.bindSocket();
  server.listenSocket();
  for (int i = 0; i < workers; ++i) {
    threads.push_back(std::make_unique<ConsumerThread>(queue, folder, settings, log));
    if (!threads.back()->start()) {
      threads.pop_back();
      stopWorkers();
      throw std::runtime_error("TlvService::start(): cannot start a worker");
    }
  }
}

void TlvService::run(const std::function<bool()>& stopRequested) {
  while (!stopRequested()) {
    const uint64_t socket = server.acceptConnection(200);
    if (socket != SocketServer::invalidSocket) {
      queue.add(SocketContainer(socket));
    }
  }
  server.closeSocket();
  stopWorkers();
}

void TlvService::stopWorkers() {
  for (std::size_t i = 0; i < threads.size(); ++i) {
    queue.add(SocketContainer());
  }
  for (auto& thread : threads) {
    thread->join();
  }
  threads.clear();
}
