#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "service/ConsumerThread.h"
#include "service/ServiceSettings.h"
#include "service/SocketContainer.h"
#include "service/SocketServer.h"
#include "service/wqueue.h"

class ServiceLog;

// The service as a host runs it: a listening socket, the queue of accepted connections and the
// workers that serve them. The accepting loop runs on the caller's thread until it is told to
// stop; the workers then finish the connections already taken and end.
class TlvService {
 public:
  TlvService(std::string folder, const ServiceSettings& settings, ServiceLog& log);
  ~TlvService();
  TlvService(const TlvService&) = delete;
  TlvService& operator=(const TlvService&) = delete;

  // Listens on address:port (port "0": a free one) and starts workers threads. Throws
  // std::runtime_error as SocketServer, or "TlvService::start(): cannot start a worker".
  void start(const std::string& address, const std::string& port, int workers);
  // The port listened on.
  int getPort() const { return server.getPort(); }
  // Accepts connections into the queue until stopRequested() answers true (asked at least every
  // 200 ms), then stops the workers after the connections already queued and closes the socket.
  void run(const std::function<bool()>& stopRequested);

 private:
  void stopWorkers();

  std::string folder;
  ServiceSettings settings;
  ServiceLog& log;
  SocketServer server;
  wqueue<SocketContainer> queue;
  std::vector<std::unique_ptr<ConsumerThread>> threads;
};
