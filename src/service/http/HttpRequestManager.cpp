#include "service/http/HttpRequestManager.h"

#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/time.h>

#include <stdexcept>

#include "service/SocketClient.h"
#include "service/http/HttpRequestBuilder.h"
#include "service/http/HttpResponseManager.h"

namespace {

// A blocking connect gives up after the send timeout of its socket, so that a host that drops
// the connection attempt cannot hold the client for minutes.
void boundConnectAndSend(SocketClient& client, int milliseconds) {
  timeval limit{};
  limit.tv_sec = milliseconds / 1000;
  limit.tv_usec = (milliseconds % 1000) * 1000;
  setsockopt(static_cast<int>(client.getSocket()), SOL_SOCKET, SO_SNDTIMEO, &limit, sizeof(limit));
}

}  // namespace

HttpRequestManager::HttpRequestManager(std::string host, unsigned int port, HttpLimits limits)
    : host(std::move(host)), port(port), limits(limits) {}

HttpResponse HttpRequestManager::sendRequest(const HttpRequestBuilder& request) const {
  // The resolver would take a larger number modulo 65536 and reach another service.
  if (port == 0 || port > 65535) throw std::runtime_error("Error: invalid socket.");
  SocketClient client;
  client.create(AF_INET, SOCK_STREAM, IPPROTO_TCP, host, std::to_string(port));
  boundConnectAndSend(client, limits.timeoutMilliseconds);
  if (!client.connectTo()) throw std::runtime_error("Error: connect to server.");
  if (!client.sendMsg(request.getHttpRequestMessage())) {
    throw std::runtime_error("Error - Connection Declined");
  }
  HttpResponseManager reader(client, limits);
  HttpResponse response;
  auto lines = reader.makeHttpResponseLines();
  response.statusLine = lines.front();
  response.headerLines.assign(lines.begin() + 1, lines.end());
  response.content = reader.makeHttpResponseContent(
      HttpResponseManager::contentLengthOf(response.headerLines, limits.maxContentBytes));
  return response;
}
