#include "service/SerieModifierWithJson.h"

#include <nlohmann/json.hpp>
#include <stdexcept>
#include <utility>
#include <vector>

#include "common/Date.h"
#include "common/Serie.h"
#include "project/database/DatabaseSerieUpdater.h"
#include "service/ServiceLog.h"

namespace {

using Change = std::pair<Date, double>;

std::vector<Change> readChanges(const Serie& serie, const nlohmann::json& json) {
  const unsigned int first = Date::julian(serie.getInterval().getBegin());
  const unsigned int last = Date::julian(serie.getInterval().getEnd());
  std::vector<Change> changes;
  for (const auto& item : json.at("values")) {
    const auto text = item.at("date").get<std::string>();
    const Date date = Date::fromString(text, "%Y-%m-%d");
    const unsigned int julian = Date::julian(date);
    if (julian < first || julian > last) {
      throw std::invalid_argument("SerieModifierWithJson::modifySerie(): date " + text +
                                  " outside the series");
    }
    changes.emplace_back(date, item.at("value").get<double>());
  }
  return changes;
}

}  // namespace

void SerieModifierWithJson::modifySerie(const Scenario& scenario, const Element& element,
                                        Serie& serie, const nlohmann::json& json, ServiceLog& log) {
  const std::vector<Change> changes = readChanges(serie, json);
  for (const auto& [date, value] : changes) {
    log.print("Value in req: " + std::to_string(value) + "\n" +
              "julian: " + std::to_string(Date::julian(date)) + "\n" +
              "Antes: " + std::to_string(serie.getValue(date)) + "\n");
    serie.setValue(date, value);
    log.print("Depois: " + std::to_string(serie.getValue(date)) + "\n");
  }
  if (!DatabaseSerieUpdater::updateDatabase(scenario, element, serie)) {
    throw std::runtime_error(
        "SerieModifierWithJson::modifySerie(): the database has no rows for the series");
  }
}
