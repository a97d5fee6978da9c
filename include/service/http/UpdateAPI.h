#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "common/Date.h"
#include "service/http/HttpLimits.h"

class Element;
class HttpRequestBuilder;
class Reservoir;
class Scenario;

// An update of one element of a scenario from the web service whose host and port are
// ConfigurationHeader::getUrlToWebService() and getUrlPortToWebService(). The service is asked
// by "GET" under the path "/api/", with the reservoir named by the id of its first institutional
// id (its code in the owner's register):
//   /api/series?variavel=<kind>&reservatorio_id=<id>&variacao=<periodicity>
//              &datainicial=<dd-mm-yyyy>&datafinal=<dd-mm-yyyy>   (UpdateSerieAPI)
//   /api/cavs?reservatorio_id=<id>                                 (UpdateCAVAPI)
// An answer of status 400 ("HTTP/1.1 400 Bad request") means that the service has nothing for
// the request: no update. Any status other than 200 and 400 is the service declining the
// request.
class UpdateAPI {
 public:
  UpdateAPI(std::shared_ptr<Element> element, std::shared_ptr<Scenario> scenario);
  virtual ~UpdateAPI() = default;

  const std::shared_ptr<Element>& getElement() const { return element; }
  void setElement(const std::shared_ptr<Element>& value) { element = value; }
  // The dated values of the last series update, in the order of the answer.
  const std::vector<std::pair<Date, double>>& getVecOfPairOfDateValue() const {
    return vecOfPairOfDateValue;
  }
  void clearVecOfPairOfDateValue() { vecOfPairOfDateValue.clear(); }
  // The bounds of the answers of later updates; HttpLimits' defaults until set.
  void setLimits(const HttpLimits& value) { limits = value; }

  // Asks the service and stores its answer in the element and in the open project database
  // (SQLStorage). True when the element was updated, false when the service answered 400.
  // Throws std::invalid_argument when the element is not a reservoir with an institutional id,
  // std::runtime_error "Error - Connection Declined" for another status, the texts of
  // HttpRequestManager::sendRequest and those of APIJsonLoader.
  virtual bool update() = 0;

 protected:
  // The element as a reservoir. Throws std::invalid_argument "<method>: the element is not a
  // reservoir" or "<method>: reservoir \"<name>\" has no institutional id".
  std::shared_ptr<Reservoir> reservoirFor(const std::string& method) const;
  // The reservoir's code at the service: the id of its first institutional id.
  static std::string serviceCode(const Reservoir& reservoir);
  // A "GET" of service with the headers of a JSON request to the configured host.
  static HttpRequestBuilder makeGetRequest(const std::string& service);
  // Sends request; on status 200 hands the content, without a leading byte-order mark, to load
  // and returns true; on status 400 returns false.
  bool exchange(const HttpRequestBuilder& request,
                const std::function<void(const std::string&)>& load) const;

  const std::shared_ptr<Scenario>& getScenario() const { return scenario; }
  void setVecOfPairOfDateValue(std::vector<std::pair<Date, double>> pairs) {
    vecOfPairOfDateValue = std::move(pairs);
  }

 private:
  std::vector<std::pair<Date, double>> vecOfPairOfDateValue;
  std::shared_ptr<Element> element;
  std::shared_ptr<Scenario> scenario;
  HttpLimits limits;
};
