#include "project/JsonLoadReservoir.h"

#include <vector>

#include "project/JsonLoadHelper.h"
#include "project/JsonLoadRegressionTechniqueFactory.h"

using json = nlohmann::json;
using Helper = JsonLoadHelper;

JsonLoadReservoir::JsonLoadReservoir(std::shared_ptr<Reservoir> reservoir,
                                     std::shared_ptr<Scenario> scenario)
    : JsonLoadNode(reservoir, std::move(scenario)), reservoir(std::move(reservoir)) {}

void JsonLoadReservoir::loadSpecific(const json& item) {
  ReservoirInfo& info = reservoir->getReservoirInfo();
  Helper::applyOptional<double>(item, "initVol", [&](double value) { info.initVol = value; });
  Helper::applyOptional<double>(item, "minVol", [&](double value) { info.minVol = value; });
  Helper::applyOptional<double>(item, "maxVol", [&](double value) { info.maxVol = value; });
  Helper::applyOptional<bool>(item, "isolated", [&](bool value) { info.isolated = value; });
  Helper::applyOptional<double>(item, "maxRelease", [&](double value) { info.maxRelease = value; });
  bool found = false;
  const json& ids = Helper::findOptional(found, item, "InstutionalID");
  if (found) {
    std::vector<InstitutionalID> institutional;
    for (const json& id : Helper::asArray(ids)) {
      institutional.push_back(
          {Helper::getRequired<int>(id, "id"), Helper::getRequired<std::string>(id, "name")});
    }
    reservoir->setInstitutionalIDs(institutional);
  }
  const json& technique = Helper::findRequired(item, "regressionTech");
  info.regressionTech =
      JsonLoadRegressionTechniqueFactory::make(Helper::getRequired<std::string>(technique, "type"));
}
