#pragma once

#include <string>

#include "service/ServiceSettings.h"
#include "service/SocketContainer.h"
#include "service/Thread.h"
#include "service/wqueue.h"

class ServiceLog;

// A worker: takes accepted connections from the queue one at a time, reads the request frame
// within the time limit, serves it with the processor of its type and closes the connection. A
// connection that fails in any way (a frame refused or cut short, an unknown type, a processor
// error) ends alone: the worker goes on with the next. The stop mark of the queue ends it.
class ConsumerThread : public Thread {
 public:
  ConsumerThread(wqueue<SocketContainer>& queue, std::string folder,
                 const ServiceSettings& settings, ServiceLog& log);

  // Serves one connection and closes it; never throws.
  void serveConnection(uint64_t socket, int loop);

 protected:
  void run() override;

 private:
  void serveFrame(uint64_t socket);

  wqueue<SocketContainer>& queue;
  std::string folder;
  ServiceSettings settings;
  ServiceLog& log;
};
