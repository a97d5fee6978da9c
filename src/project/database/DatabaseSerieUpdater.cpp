#include "project/database/DatabaseSerieUpdater.h"

#include <stdexcept>
#include <string>

#include "common/Calendar.h"
#include "core/Scenario.h"
#include "project/database/DatabaseHydrologicalSeries.h"
#include "project/database/DatabaseSearch.h"
#include "project/database/DatabaseUpdate.h"
#include "project/database/SQLStorage.h"
#include "project/database/TimeStampHash.h"

bool DatabaseSerieUpdater::updateDatabase(const Scenario& scenario, const Element& element,
                                          const Serie& serie) {
  return updateDatabase(SQLStorage::getInstance().getStorageRef(), scenario, element, serie);
}

bool DatabaseSerieUpdater::updateDatabase(SQLite::Database& storage, const Scenario& scenario,
                                          const Element& element, const Serie& serie) {
  if (isInput(element, serie)) {
    return DatabaseUpdate::updateInputSerie(storage, element.getDatabaseId(), serie);
  }
  if (DatabaseHydrologicalSeries::replace(storage, scenario, element, serie)) return true;
  const int window = windowOf(element, serie);
  if (window < 0) {
    throw std::invalid_argument(
        "DatabaseSerieUpdater::updateDatabase(): the serie is not one of the element's");
  }
  return updateResult(storage, scenario, element, serie, static_cast<unsigned int>(window));
}

bool DatabaseSerieUpdater::isInput(const Element& element, const Serie& serie) {
  for (const auto& input : element.getVectorOfInputSeries()) {
    if (input.get() == &serie) return true;
  }
  return false;
}

int DatabaseSerieUpdater::windowOf(const Element& element, const Serie& serie) {
  const auto windows = static_cast<int>(element.getOutputSeries().size());
  for (int window = 0; window < windows; ++window) {
    for (const auto& result : element.getVectorOfSeries(static_cast<unsigned int>(window))) {
      if (result.get() == &serie) return window;
    }
  }
  return -1;
}

bool DatabaseSerieUpdater::updateResult(SQLite::Database& storage, const Scenario& scenario,
                                        const Element& element, const Serie& serie,
                                        unsigned int window) {
  const std::string timeStamp = Calendar::getTimeStamp();
  // An edited result stays part of the run it belongs to, so that the run still loads whole.
  const auto runs = DatabaseSearch::getHashesOfResultsByScenID(storage, scenario.getDatabaseId());
  const std::string hash =
      runs.empty() ? TimeStampHash::make(scenario.getDatabaseId(), timeStamp) : runs.back();
  return DatabaseUpdate::updateOutputSerie(storage, element.getDatabaseId(), serie, window,
                                           timeStamp, hash);
}
