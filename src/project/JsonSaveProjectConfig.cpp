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

// The solver is named only when it is not lp_solve, so that a project that keeps the default is
// written as before the key existed.
JsonSaveBuilder::Members solverMember() {
  if (C::getLinearProgramSolver() == C::defaultLinearProgramSolver()) return {};
  return {B::makeJsonKeyValueString("linearProgramSolver", C::getLinearProgramSolver())};
}

}  // namespace

std::string JsonSaveProjectConfig::toJson() {
  JsonSaveBuilder::Members members = {
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
      B::makeJsonKeyValue("CoreReservoirColors", B::makeArray(C::getCoreReservoirColors(), color)),
  };
  for (std::string& member : solverMember()) members.push_back(std::move(member));
  return B::makeJsonKeyValue("configuration", B::makeObject(members));
}
