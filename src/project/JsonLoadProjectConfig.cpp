#include "project/JsonLoadProjectConfig.h"

#include <functional>
#include <vector>

#include "core/ConfigurationHeader.h"
#include "operation/LinearProgramSolverFactory.h"
#include "project/JsonLoadHelper.h"

using json = nlohmann::json;

namespace {

using Changes = std::vector<std::function<void()>>;

// Keeps the change of key for later, so that nothing is applied before every key is read.
template <typename T>
void read(const json& configuration, const char* key, void (*set)(T), Changes& changes) {
  JsonLoadHelper::applyOptional<std::decay_t<T>>(
      configuration, key,
      [&](const std::decay_t<T>& value) { changes.push_back([set, value] { set(value); }); });
}

ConfigurationHeader::CoreReservoirColor readColor(const json& object) {
  bool found = false;
  const double value = JsonLoadHelper::findOptional<double>(found, object, "value");
  return {JsonLoadHelper::getRequired<unsigned int>(object, "r"),
          JsonLoadHelper::getRequired<unsigned int>(object, "g"),
          JsonLoadHelper::getRequired<unsigned int>(object, "b"), value};
}

// A project that names no solver keeps lp_solve, so files written before the key existed run as
// they always did.
void readSolver(const json& configuration, Changes& changes) {
  bool found = false;
  const json& value = JsonLoadHelper::findOptional(found, configuration, "linearProgramSolver");
  const std::string key = found ? JsonLoadHelper::get<std::string>(value)
                                : ConfigurationHeader::defaultLinearProgramSolver();
  if (!LinearProgramSolverFactory::has(key)) {
    JsonLoadHelper::refuse(
        value, "a linear programme solver (" + LinearProgramSolverFactory::keysText() + ")");
  }
  changes.push_back([key] { ConfigurationHeader::setLinearProgramSolver(key); });
}

void readColors(const json& configuration, Changes& changes) {
  bool found = false;
  const json& colors = JsonLoadHelper::findOptional(found, configuration, "CoreReservoirColors");
  if (!found) return;
  std::vector<ConfigurationHeader::CoreReservoirColor> list;
  for (const json& item : JsonLoadHelper::asArray(colors)) list.push_back(readColor(item));
  changes.push_back([list] { ConfigurationHeader::setCoreReservoirColors(list); });
}

}  // namespace

void JsonLoadProjectConfig::load(const json& root) {
  using C = ConfigurationHeader;
  bool found = false;
  const json& configuration = JsonLoadHelper::findOptional(found, root, "project", "configuration");
  if (!found) return;
  // The two setters that refuse values come first: when the second refuses, only the first has
  // to be undone.
  Changes changes;
  read(configuration, "utmZone", C::setUtmZone, changes);
  read(configuration, "utmHemisphere", C::setUtmHemisphere, changes);
  read(configuration, "precision", C::setPrecision, changes);
  read(configuration, "numOfLinesInChart", C::setNumOfLinesInChart, changes);
  read(configuration, "saveResults", C::setSaveResults, changes);
  read(configuration, "saveOnlyOneResults", C::setSaveOnlyOneResults, changes);
  read(configuration, "keepInputSerieHistorical", C::setKeepInputSerieHistorical, changes);
  read(configuration, "saveEnableDocker", C::setSaveCheckEnableDocker, changes);
  read(configuration, "saveUrlToWebService", C::setUrlToWebService, changes);
  read(configuration, "saveUrlPortToWebService", C::setUrlPortToWebService, changes);
  read(configuration, "loadResults", C::setLoadResults, changes);
  read(configuration, "maxNumberOfErrors", C::setMaxNumberOfErrors, changes);
  read(configuration, "simulationURL", C::setFolderToSaveSimulationModels, changes);
  read(configuration, "keepTheSimulationFilesAfterExecution",
       C::setKeepTheSimulationFilesAfterExecution, changes);
  readSolver(configuration, changes);
  readColors(configuration, changes);
  const unsigned int zone = C::getUtmZone();
  try {
    for (const auto& change : changes) change();
  } catch (...) {
    C::setUtmZone(zone);
    throw;
  }
}
