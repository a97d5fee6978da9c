#include "project/JsonSaveReservoir.h"

#include "project/JsonSaveRegressionTechniqueFactory.h"

using B = JsonSaveBuilder;

JsonSaveReservoir::JsonSaveReservoir(std::shared_ptr<Reservoir> reservoir,
                                     std::shared_ptr<Scenario> scenario)
    : JsonSaveNode(reservoir, std::move(scenario)), reservoir(std::move(reservoir)) {}

JsonSaveBuilder::Members JsonSaveReservoir::toJsonSpecific() const {
  const ReservoirInfo& info = reservoir->getReservoirInfo();
  // The register number is an int in the model and unsigned in the file: the cast keeps its
  // bits, so a reader that casts back gets the same number.
  const auto institutional = [](const InstitutionalID& id) {
    return B::makeObject({B::makeJsonKeyValue("id", static_cast<unsigned int>(id.id)),
                          B::makeJsonKeyValueString("name", id.owner)});
  };
  return {
      B::makeJsonKeyValue("initVol", info.initVol),
      B::makeJsonKeyValue("minVol", info.minVol),
      B::makeJsonKeyValue("maxVol", info.maxVol),
      B::makeJsonKeyValue("isolated", info.isolated),
      B::makeJsonKeyValue("maxRelease", info.maxRelease),
      B::makeJsonKeyValue("InstutionalID",
                          B::makeArray(reservoir->getInstitutionalIDs(), institutional)),
      B::makeJsonKeyValue("regressionTech",
                          JsonSaveRegressionTechniqueFactory::make(info.regressionTech)->toJson())};
}
