#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "service/http/HttpRequestBuilder.h"
#include "service/http/UpdateAPI.h"
#include "vocabulary/EnumTypes.h"

// The update of one input series of a reservoir over the period of its scenario. The service's
// "variavel" of each kind: precipitation "precipitacao", evaporation "evaporacao", natural
// incremental inflow "vazao_natural_incremental"; "variacao" is the display name of the
// scenario's periodicity ("Mensal").
class UpdateSerieAPI : public UpdateAPI {
 public:
  // type: the input series to update, one of those getWSToSerieType knows.
  UpdateSerieAPI(std::shared_ptr<Element> element, std::shared_ptr<Scenario> scenario,
                 SerieType type);

  // The service's name of a series kind. Throws std::invalid_argument
  // "UpdateSerieApi::getWSToSerieType:: invalid SerieType" for a kind the service does not have.
  static const std::string& getWSToSerieType(SerieType type);
  // The kinds the service has, in the order of their values.
  static std::vector<SerieType> getServiceSerieTypes();

  // The request for the element's series. Throws as reservoirFor and getWSToSerieType.
  HttpRequestBuilder makeJsonRequest() const;
  // See UpdateAPI::update(); the values read are then in getVecOfPairOfDateValue().
  bool update() override;

 private:
  static const std::map<SerieType, std::string>& serviceNames();

  SerieType type;
};
