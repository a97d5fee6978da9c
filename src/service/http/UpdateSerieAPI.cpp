#include "service/http/UpdateSerieAPI.h"

#include <stdexcept>

#include "core/Reservoir.h"
#include "core/Scenario.h"
#include "project/database/SQLStorage.h"
#include "service/http/APIJsonLoader.h"
#include "service/http/HttpFieldsBuilder.h"

namespace {

const char* const kDateFormat = "%d-%m-%Y";

}  // namespace

UpdateSerieAPI::UpdateSerieAPI(std::shared_ptr<Element> element, std::shared_ptr<Scenario> scenario,
                               SerieType type)
    : UpdateAPI(std::move(element), std::move(scenario)), type(type) {}

const std::map<SerieType, std::string>& UpdateSerieAPI::serviceNames() {
  static const std::map<SerieType, std::string> names{
      {SerieType::precipitation, "precipitacao"},
      {SerieType::evaporation, "evaporacao"},
      {SerieType::naturalIncrementalFlow, "vazao_natural_incremental"},
  };
  return names;
}

const std::string& UpdateSerieAPI::getWSToSerieType(SerieType kind) {
  const auto found = serviceNames().find(kind);
  if (found == serviceNames().end()) {
    throw std::invalid_argument("UpdateSerieApi::getWSToSerieType:: invalid SerieType");
  }
  return found->second;
}

std::vector<SerieType> UpdateSerieAPI::getServiceSerieTypes() {
  std::vector<SerieType> kinds;
  for (const auto& entry : serviceNames()) kinds.push_back(entry.first);
  return kinds;
}

HttpRequestBuilder UpdateSerieAPI::makeJsonRequest() const {
  const auto reservoir = reservoirFor("UpdateSerieAPI::makeJsonRequest()");
  const Interval& interval = getScenario()->getInterval();
  HttpFieldsBuilder fields("/api/series");
  fields.addField("variavel", getWSToSerieType(type))
      .addField("reservatorio_id", serviceCode(*reservoir))
      .addField("variacao", interval.getPeriodicity().getName())
      .addField("datainicial", interval.getBegin().toString(kDateFormat))
      .addField("datafinal", interval.getEnd().toString(kDateFormat));
  return makeGetRequest(fields.build());
}

bool UpdateSerieAPI::update() {
  const auto reservoir = reservoirFor("UpdateSerieAPI::update()");
  clearVecOfPairOfDateValue();
  return exchange(makeJsonRequest(), [&](const std::string& answer) {
    setVecOfPairOfDateValue(APIJsonLoader::loadJsonExternalSerie(
        SQLStorage::getInstance().getStorageRef(), answer, *reservoir, type));
  });
}
