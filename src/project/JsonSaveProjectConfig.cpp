#include "project/JsonSaveProjectConfig.h"

#include "core/ConfigurationHeader.h"
#include "project/JsonSaveBuilder.h"

using B = JsonSaveBuilder;
using C = ConfigurationHeader;

namespace {

std::string color(const C::CoreReservoirColor& color) {
  return B::makeObject({B::makeJsonKeyValue("r", color.r), B::makeJsonKeyValue("g", color.g),
                        B::makeJsonKeyValue("b", color.b),
                        B::makeJsonKeyValue("value", color.value)});
}

}  // namespace

std::string JsonSaveProjectConfig::toJson() {
  return B::makeJsonKeyValue(
      "configuration",
      B::makeObject({
          B::makeJsonKeyValue("precision", C::getPrecision()),
          B::makeJsonKeyValue("numOfLinesInChart", C::getNumOfLinesInChart()),
          B::makeJsonKeyValue("saveResults", C::isSaveResults()),
          B::makeJsonKeyValue("saveOnlyOneResults", C::isSaveOnlyOneResults()),
          B::makeJsonKeyValue("keepInputSerieHistorical", C::isKeepInputSerieHistorical()),
          B::makeJsonKeyValue("saveEnableDocker", C::isSaveCheckEnableDocker()),
          B::makeJsonKeyValueString("saveUrlToWebService", C::getUrlToWebService()),
          B::makeJsonKeyValue("saveUrlPortToWebService", C::getUrlPortToWebService()),
          B::makeJsonKeyValue("loadResults", C::isLoadResults()),
          B::makeJsonKeyValue("utmZone", C::getUtmZone()),
          B::makeJsonKeyValueString("utmHemisphere", C::getUtmHemisphere()),
          B::makeJsonKeyValue("maxNumberOfErrors", C::getMaxNumberOfErrors()),
          B::makeJsonKeyValueString("simulationURL", C::getFolderToSaveSimulationModels()),
          B::makeJsonKeyValue("keepTheSimulationFilesAfterExecution",
                              C::getKeepTheSimulationFilesAfterExecution()),
          B::makeJsonKeyValue("CoreReservoirColors",
                              B::makeArray(C::getCoreReservoirColors(), color)),
      }));
}
