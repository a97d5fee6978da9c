#include "project/JsonSaveLinkAddonPumping.h"

#include <vector>

#include "core/LinkAddonPumping.h"

using B = JsonSaveBuilder;

namespace {

std::string toJsonPeriod(const std::shared_ptr<PumpingPeriod>& period) {
  return B::makeObject({B::makeJsonKeyValue("initialValue", period->initialValue),
                        B::makeJsonKeyValue("finalValue", period->finalValue)});
}

std::string toJsonPump(const std::shared_ptr<PumpingAddon>& pump) {
  return B::makeObject({B::makeJsonKeyValue("periods", B::makeArray(pump->periods, toJsonPeriod)),
                        B::makeJsonKeyValue("flows", B::makeVectorOfFloatingValues({pump->flow}))});
}

std::string toJsonFlowCost(const std::shared_ptr<PumpingFlowCost>& row) {
  const std::vector<double> costs(row->costs.begin(), row->costs.end());
  return B::makeObject(
      {B::makeJsonKeyValue("costFlow", row->flow),
       B::makeJsonKeyValue("costsPerMonth", B::makeVectorOfFloatingValues(costs))});
}

}  // namespace

// Only LinkAddonPumping carries the type that chooses this writer.
JsonSaveBuilder::Members JsonSaveLinkAddonPumping::toJsonSpecific() const {
  const auto& pumping = static_cast<const LinkAddonPumping&>(*getAddon());
  return {
      B::makeJsonKeyValue("pumps", B::makeArray(pumping.getPumpVector(), toJsonPump)),
      B::makeJsonKeyValue("flowCosts", B::makeArray(pumping.getFlowCostVector(), toJsonFlowCost))};
}
