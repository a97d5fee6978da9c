#include "core/ConfigurationHeader.h"

#include <filesystem>
#include <stdexcept>

ConfigurationHeader::Values& ConfigurationHeader::values() {
  static Values current;
  return current;
}

void ConfigurationHeader::reset() { values() = Values(); }

unsigned int ConfigurationHeader::getPrecision() { return values().precision; }
void ConfigurationHeader::setPrecision(unsigned int value) { values().precision = value; }
unsigned int ConfigurationHeader::getNumOfLinesInChart() { return values().numOfLinesInChart; }
void ConfigurationHeader::setNumOfLinesInChart(unsigned int value) {
  values().numOfLinesInChart = value;
}
bool ConfigurationHeader::isSaveResults() { return values().saveResults; }
void ConfigurationHeader::setSaveResults(bool value) { values().saveResults = value; }
bool ConfigurationHeader::isSaveOnlyOneResults() { return values().saveOnlyOneResults; }
void ConfigurationHeader::setSaveOnlyOneResults(bool value) { values().saveOnlyOneResults = value; }
bool ConfigurationHeader::isKeepInputSerieHistorical() { return values().keepInputSerieHistorical; }
void ConfigurationHeader::setKeepInputSerieHistorical(bool value) {
  values().keepInputSerieHistorical = value;
}
bool ConfigurationHeader::isSaveCheckEnableDocker() { return values().saveEnableDocker; }
void ConfigurationHeader::setSaveCheckEnableDocker(bool value) { values().saveEnableDocker = value; }
const std::string& ConfigurationHeader::getUrlToWebService() { return values().urlToWebService; }
void ConfigurationHeader::setUrlToWebService(const std::string& value) {
  values().urlToWebService = value;
}
unsigned int ConfigurationHeader::getUrlPortToWebService() { return values().urlPortToWebService; }
void ConfigurationHeader::setUrlPortToWebService(unsigned int value) {
  values().urlPortToWebService = value;
}
bool ConfigurationHeader::isLoadResults() { return values().loadResults; }
void ConfigurationHeader::setLoadResults(bool value) { values().loadResults = value; }
unsigned int ConfigurationHeader::getUtmZone() { return values().utmZone; }

void ConfigurationHeader::setUtmZone(unsigned int value) {
  if (value < 1 || value > 60) {
    throw std::invalid_argument("ConfigurationHeader::setUtmZone: invalid zone");
  }
  values().utmZone = value;
}

const std::string& ConfigurationHeader::getUtmHemisphere() { return values().utmHemisphere; }

void ConfigurationHeader::setUtmHemisphere(const std::string& value) {
  if (value != "Sul" && value != "Norte") throw std::invalid_argument("invalid HemisphereType value");
  values().utmHemisphere = value;
}

unsigned int ConfigurationHeader::getMaxNumberOfErrors() { return values().maxNumberOfErrors; }
void ConfigurationHeader::setMaxNumberOfErrors(unsigned int value) {
  values().maxNumberOfErrors = value;
}
const std::string& ConfigurationHeader::getFolderToSaveSimulationModels() {
  return values().simulationURL;
}

void ConfigurationHeader::setFolderToSaveSimulationModels(const std::string& value) {
  values().simulationURL = std::filesystem::path(value).make_preferred().string();
}

bool ConfigurationHeader::getKeepTheSimulationFilesAfterExecution() {
  return values().keepTheSimulationFilesAfterExecution;
}
void ConfigurationHeader::setKeepTheSimulationFilesAfterExecution(bool value) {
  values().keepTheSimulationFilesAfterExecution = value;
}

const std::string& ConfigurationHeader::getLinearProgramSolver() {
  return values().linearProgramSolver;
}

void ConfigurationHeader::setLinearProgramSolver(const std::string& key) {
  values().linearProgramSolver = key;
}

const std::string& ConfigurationHeader::defaultLinearProgramSolver() {
  static const std::string key = "lpsolve";
  return key;
}
const std::vector<ConfigurationHeader::CoreReservoirColor>&
ConfigurationHeader::getCoreReservoirColors() {
  return values().colors;
}
void ConfigurationHeader::setCoreReservoirColors(const std::vector<CoreReservoirColor>& value) {
  values().colors = value;
}

bool ConfigurationHeader::isOldTrafficLimit(unsigned int scenarioId) {
  auto it = values().oldTrafficLimit.find(scenarioId);
  return it != values().oldTrafficLimit.end() && it->second;
}

void ConfigurationHeader::setOldTrafficLimit(unsigned int scenarioId, bool value) {
  values().oldTrafficLimit[scenarioId] = value;
}
