#include "project/JsonSaveBuilder.h"

#include <filesystem>
#include <fstream>
#include <iomanip>
#include <limits>
#include <locale>
#include <sstream>

#include "common/NumericalUtils.h"
#include "common/Serie.h"
#include "common/StringUtils.h"
#include "core/Scenario.h"
#include "project/JsonSaveProjectConfig.h"
#include "project/JsonSaveSceneryFactory.h"
#include "scenario/ScenarioManager.h"

bool JsonSaveBuilder::save(const std::string& path) {
  std::vector<std::shared_ptr<Scenario>> scenarios;
  for (const auto& entry : ScenarioManager::getInstance().getSceneries()) {
    scenarios.push_back(entry.second);
  }
  const std::string text = toJson(scenarios);
  // The text goes to a sibling first and replaces the file only once whole, so that a failed or
  // interrupted write never leaves a project file cut short.
  const std::filesystem::path target = std::filesystem::u8path(path);
  const std::filesystem::path partial =
      target.parent_path() / ("." + target.filename().string() + ".partial");
  std::ofstream file(partial, std::ios::out);
  file << text;
  file.close();
  std::error_code error;
  if (file) std::filesystem::rename(partial, target, error);
  if (!file || error) {
    std::filesystem::remove(partial, error);
    return false;
  }
  return true;
}

std::string JsonSaveBuilder::toJson(const std::vector<std::shared_ptr<Scenario>>& scenarios) {
  const auto scenarioText = [](const std::shared_ptr<Scenario>& scenario) {
    return JsonSaveSceneryFactory::make(scenario)->toJson();
  };
  return makeObject({makeJsonKeyValue("scenarios", makeArray(scenarios, scenarioText)),
                     makeJsonKeyValue("project", makeObject({JsonSaveProjectConfig::toJson()}))});
}

std::string JsonSaveBuilder::makeJsonKey(const std::string& key) { return "\"" + key + "\":"; }

std::string JsonSaveBuilder::makeJsonKeyValue(const std::string& key, const std::string& value) {
  return makeJsonKey(key) + value;
}

std::string JsonSaveBuilder::makeObject(const Members& members) {
  std::string text = "{";
  for (const std::string& member : members) text += member + ",";
  if (!members.empty()) text.pop_back();
  return text + "}";
}

std::string JsonSaveBuilder::makeJsonKeyValueString(const std::string& key,
                                                    const std::string& value) {
  return makeJsonKey(key) + makeStringValue(value);
}

std::string JsonSaveBuilder::makeStringValue(const std::string& value) {
  return "\"" + value + "\"";
}

// The empty value keeps the six decimals of printf's "%f", which readers of the format expect.
std::string JsonSaveBuilder::makeFloatingValue(double value) {
  return NumericalUtils::isEmpty(value) ? "-999.000000"
                                        : StringUtils::floatingToStdString(value, -1);
}

std::string JsonSaveBuilder::makeVectorOfFloatingValues(const std::vector<double>& values) {
  return makeArray(values, makeFloatingValue);
}

std::string JsonSaveBuilder::makeExactValue(double value) {
  std::ostringstream out;
  out.imbue(std::locale::classic());
  out << std::setprecision(std::numeric_limits<double>::max_digits10) << value;
  return out.str();
}

std::string JsonSaveBuilder::makeVectorOfExactValues(const std::vector<double>& values) {
  return makeArray(values, makeExactValue);
}

std::string JsonSaveBuilder::makeSerie(const Serie& serie) {
  return makeSerie(serie.getName(), serie);
}

std::string JsonSaveBuilder::makeSerie(const std::string& key, const Serie& serie) {
  std::string text = "[";
  for (const auto& [julian, value] : serie.getMapOfJulianToValues()) {
    text +=
        "{" + makeJsonKeyValue("julianDay", julian) + "," + makeJsonKeyValue("value", value) + "},";
  }
  if (!serie.getMapOfJulianToValues().empty()) text.pop_back();
  return makeJsonKeyValue(key, text + "]");
}
