#pragma once

#include <string>

#include "service/http/HttpLimits.h"
#include "service/http/HttpResponse.h"

class HttpRequestBuilder;

// Sends one request to a web service over a new IPv4 TCP connection and reads its answer. The
// connection is closed when the answer has been read, or on any failure.
class HttpRequestManager {
 public:
  HttpRequestManager(std::string host, unsigned int port, HttpLimits limits = {});

  // Connects, sends the message of request (makeRequest() must have been called), reads the
  // header lines and then the content-length bytes of the content. Throws std::runtime_error:
  // "Error: invalid socket." when the host does not resolve or the port is not one of 1 to 65535,
  // "Error: connect to server." when the connection is refused or not made within the time limit,
  // "Error - Connection Declined" when the request cannot be sent, and the texts of
  // HttpResponseManager for the answer.
  HttpResponse sendRequest(const HttpRequestBuilder& request) const;

 private:
  std::string host;
  unsigned int port;
  HttpLimits limits;
};
