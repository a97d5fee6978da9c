#include "service/http/HttpRequestBuilder.h"

#include <algorithm>
#include <stdexcept>

namespace {

bool isControl(char c) {
  const auto code = static_cast<unsigned char>(c);
  return code < 0x20 || code == 0x7f;
}

bool holdsBlankOrControl(const std::string& text) {
  return std::any_of(text.begin(), text.end(), [](char c) { return c == ' ' || isControl(c); });
}

}  // namespace

HttpRequestBuilder::HttpRequestBuilder(Enum<HttpMethods> method) : method(std::move(method)) {}

void HttpRequestBuilder::setMethodService(const std::string& text) {
  if (text.empty() || text.front() != '/' || holdsBlankOrControl(text)) {
    throw std::invalid_argument(
        "HttpRequestBuilder::setMethodService(): the service must begin with '/' and hold no "
        "blank or control character");
  }
  service = text;
}

void HttpRequestBuilder::setPayload(const std::string& text) { payload = text; }

void HttpRequestBuilder::addHeader(const Enum<HttpHeaders>& header, const std::string& value) {
  // A tab is a legal blank inside a header value; every other control character is not.
  const bool refused =
      std::any_of(value.begin(), value.end(), [](char c) { return c != '\t' && isControl(c); });
  if (refused) {
    throw std::invalid_argument(
        "HttpRequestBuilder::addHeader(): a header value holds a control character");
  }
  headers.emplace_back(header, value);
}

void HttpRequestBuilder::makeRequest() {
  std::string text = method.getName() + " " + service + " HTTP/1.1\r\n";
  for (const auto& [header, value] : headers) text += header.getName() + " " + value + "\r\n";
  if (!payload.empty()) {
    text += HttpVocabulary::of(HttpHeaders::contentLength).getName() + " " +
            std::to_string(payload.size()) + "\r\n";
  }
  message = text + "\r\n" + payload;
}
