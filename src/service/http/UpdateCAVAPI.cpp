#include "service/http/UpdateCAVAPI.h"

#include "core/Reservoir.h"
#include "project/database/SQLStorage.h"
#include "service/http/APIJsonLoader.h"
#include "service/http/HttpFieldsBuilder.h"

UpdateCAVAPI::UpdateCAVAPI(std::shared_ptr<Element> element, std::shared_ptr<Scenario> scenario)
    : UpdateAPI(std::move(element), std::move(scenario)) {}

HttpRequestBuilder UpdateCAVAPI::makeJsonRequest() const {
  const auto reservoir = reservoirFor("UpdateCAVAPI::makeJsonRequest()");
  return makeGetRequest(
      HttpFieldsBuilder("/api/cavs").addField("reservatorio_id", serviceCode(*reservoir)).build());
}

bool UpdateCAVAPI::update() {
  const auto reservoir = reservoirFor("UpdateCAVAPI::update()");
  rowsStored = 0;
  return exchange(makeJsonRequest(), [&](const std::string& answer) {
    rowsStored = APIJsonLoader::loadJsonExternalCAV(SQLStorage::getInstance().getStorageRef(),
                                                    answer, *reservoir);
  });
}
