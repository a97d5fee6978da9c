#include "service/http/UpdateAPI.h"

#include <stdexcept>

#include "common/StringUtils.h"
#include "core/ConfigurationHeader.h"
#include "core/Reservoir.h"
#include "service/http/HttpRequestBuilder.h"
#include "service/http/HttpRequestManager.h"
#include "service/http/HttpResponseManager.h"

namespace {

constexpr int kStatusOk = 200;
constexpr int kStatusBadRequest = 400;
const char* const kByteOrderMark = "\xEF\xBB\xBF";
const char* const kAcceptList =
    "text/html,application/xhtml+xml,application/xml;q=0.9,application/json,*/*;q=0.8";

std::string hostHeader() {
  const unsigned int port = ConfigurationHeader::getUrlPortToWebService();
  const std::string& host = ConfigurationHeader::getUrlToWebService();
  return port == 80 ? host : host + ":" + std::to_string(port);
}

}  // namespace

UpdateAPI::UpdateAPI(std::shared_ptr<Element> element, std::shared_ptr<Scenario> scenario)
    : element(std::move(element)), scenario(std::move(scenario)) {}

std::shared_ptr<Reservoir> UpdateAPI::reservoirFor(const std::string& method) const {
  auto reservoir = std::dynamic_pointer_cast<Reservoir>(element);
  if (!reservoir) throw std::invalid_argument(method + ": the element is not a reservoir");
  if (reservoir->getInstitutionalIDs().empty()) {
    throw std::invalid_argument(method + ": reservoir \"" + reservoir->getName() +
                                "\" has no institutional id");
  }
  return reservoir;
}

std::string UpdateAPI::serviceCode(const Reservoir& reservoir) {
  return std::to_string(reservoir.getInstitutionalIDs().front().id);
}

HttpRequestBuilder UpdateAPI::makeGetRequest(const std::string& service) {
  HttpRequestBuilder request(HttpVocabulary::of(HttpMethods::get));
  request.setMethodService(service);
  request.addHeader(HttpVocabulary::of(HttpHeaders::host), hostHeader());
  request.addHeader(HttpVocabulary::of(HttpHeaders::connection), "keep-alive");
  request.addHeader(HttpVocabulary::of(HttpHeaders::cacheControl), "max-age=0");
  request.addHeader(HttpVocabulary::of(HttpHeaders::contentType),
                    "application/json; charset=utf-8");
  request.addHeader(HttpVocabulary::of(HttpHeaders::keepAlive), "timeout=5, max=100");
  request.addHeader(HttpVocabulary::of(HttpHeaders::accept), kAcceptList);
  request.makeRequest();
  return request;
}

bool UpdateAPI::exchange(const HttpRequestBuilder& request,
                         const std::function<void(const std::string&)>& load) const {
  const HttpRequestManager manager(ConfigurationHeader::getUrlToWebService(),
                                   ConfigurationHeader::getUrlPortToWebService(), limits);
  HttpResponse response = manager.sendRequest(request);
  const int status = HttpResponseManager::statusCodeOf(response.statusLine);
  if (status == kStatusBadRequest) return false;
  if (status != kStatusOk) throw std::runtime_error("Error - Connection Declined");
  if (StringUtils::startsWith(response.content, kByteOrderMark)) {
    StringUtils::replace(response.content, kByteOrderMark, "");
  }
  load(response.content);
  return true;
}
