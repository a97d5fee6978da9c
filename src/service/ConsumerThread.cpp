#include "service/ConsumerThread.h"

#include <unistd.h>

#include <cstdio>
#include <exception>
#include <string>

#include "service/Labeldefinitions.h"
#include "service/RequestProcessingFactoryByEnumType.h"
#include "service/RequestProcessor.h"
#include "service/ServiceLog.h"
#include "service/SocketUtils.h"

namespace {

std::string loopLine(unsigned long thread, int loop, const char* what) {
  char text[128];
  std::snprintf(text, sizeof(text), "thread %lu, loop %d - %s\n", thread, loop, what);
  return text;
}

}  // namespace

ConsumerThread::ConsumerThread(wqueue<SocketContainer>& queue, std::string folder,
                               const ServiceSettings& settings, ServiceLog& log)
    : queue(queue), folder(std::move(folder)), settings(settings), log(log) {}

void ConsumerThread::run() {
  for (int loop = 0;; ++loop) {
    log.print(loopLine(self(), loop, "waiting for item..."));
    const SocketContainer item = queue.remove();
    if (item.isStopMark()) {
      return;
    }
    serveConnection(item.getSocket(), loop);
  }
}

void ConsumerThread::serveConnection(uint64_t socket, int loop) {
  log.print(loopLine(self(), loop, "got one item") + std::string(70, '#') + "\n\n" +
            "STEP 6.1: A client connected\n");
  log.print("Label de inicio: " + Labeldefinitions::produceTimeStamp());
  try {
    serveFrame(socket);
  } catch (const std::exception& error) {
    log.print(std::string("Connection ended: ") + error.what() + "\n");
  } catch (...) {
    log.print("Connection ended: unknown failure\n");
  }
  log.print("Label de fim: " + Labeldefinitions::produceTimeStamp() +
            "\n\nSTEP 6.3: The client's connection ended\n");
  ::close(static_cast<int>(socket));
}

void ConsumerThread::serveFrame(uint64_t socket) {
  const auto deadline = SocketUtils::Clock::now() + settings.readTimeout;
  const int32_t type = SocketUtils::readIntFourBytes(socket, deadline);
  const int32_t length = SocketUtils::readIntFourBytes(socket, deadline);
  SocketUtils::checkLength(length, settings.maxFrameLength);
  log.print("STEP 6.2: The received data was: ");
  const std::string value =
      SocketUtils::readNBytesAsString(static_cast<std::size_t>(length), socket, deadline);
  log.print("Type received: " + std::to_string(type) + " <<\n");
  const Requisition requisition(socket, TLV(type, length, value));
  auto processor = RequestProcessingFactoryByEnumType::make(requisition);
  processor->setFolder(folder);
  processor->setSettings(settings);
  processor->setLog(log);
  processor->process();
}
