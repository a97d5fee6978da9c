#pragma once

#include <string>
#include <utility>
#include <vector>

#include "service/http/HttpVocabulary.h"

// The text of one HTTP/1.1 request: the request line "<method> <service> HTTP/1.1", one line per
// header in the order added, a Content-Length line when there is a payload, a blank line and the
// payload. Every line ends with "\r\n". Texts that would break a line (a carriage return or line
// feed in the service or a header value) are refused, so that nothing the caller passes can add
// a header or a second request.
class HttpRequestBuilder {
 public:
  explicit HttpRequestBuilder(Enum<HttpMethods> method);

  // The path and query of the request, "/api/cavs?reservatorio_id=7". Throws
  // std::invalid_argument "HttpRequestBuilder::setMethodService(): the service must begin with
  // '/' and hold no blank or control character".
  void setMethodService(const std::string& service);
  void setPayload(const std::string& payload);
  // Throws std::invalid_argument "HttpRequestBuilder::addHeader(): a header value holds a control
  // character".
  void addHeader(const Enum<HttpHeaders>& header, const std::string& value);

  // Builds the message from what was set so far; the service is "/" when none was set.
  void makeRequest();
  // The message of the last makeRequest(); empty before the first.
  const std::string& getHttpRequestMessage() const { return message; }

 private:
  Enum<HttpMethods> method;
  std::string service = "/";
  std::string payload;
  std::vector<std::pair<Enum<HttpHeaders>, std::string>> headers;
  std::string message;
};
