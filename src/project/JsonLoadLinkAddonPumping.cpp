#include "project/JsonLoadLinkAddonPumping.h"

#include <algorithm>
#include <stdexcept>
#include <vector>

#include "core/LinkAddonPumping.h"
#include "project/JsonLoadHelper.h"

using json = nlohmann::json;
using Helper = JsonLoadHelper;

namespace {

const std::string kMethod = "JsonLoadLinkAddonPumping::load(): ";

std::shared_ptr<PumpingPeriod> loadPeriod(const json& item) {
  auto period = std::make_shared<PumpingPeriod>();
  Helper::applyOptional<unsigned int>(item, "initialValue",
                                      [&](unsigned int value) { period->initialValue = value; });
  Helper::applyOptional<unsigned int>(item, "finalValue",
                                      [&](unsigned int value) { period->finalValue = value; });
  return period;
}

// A pump has one flow; the file keeps it in a list of its own.
std::shared_ptr<PumpingAddon> loadPump(const json& item) {
  auto pump = std::make_shared<PumpingAddon>();
  bool found = false;
  const json& periods = Helper::findOptional(found, item, "periods");
  if (found) {
    pump->periods.clear();
    for (const json& period : Helper::asArray(periods)) pump->periods.push_back(loadPeriod(period));
  }
  Helper::applyOptional<std::vector<double>>(item, "flows", [&](const std::vector<double>& flows) {
    if (flows.size() != 1) throw std::invalid_argument(kMethod + "flows must hold one flow");
    pump->flow = flows.front();
  });
  return pump;
}

std::shared_ptr<PumpingFlowCost> loadFlowCost(const json& item) {
  auto row = std::make_shared<PumpingFlowCost>();
  Helper::applyOptional<double>(item, "costFlow", [&](double flow) { row->flow = flow; });
  Helper::applyOptional<std::vector<double>>(
      item, "costsPerMonth", [&](const std::vector<double>& costs) {
        if (costs.size() != row->costs.size()) {
          throw std::invalid_argument(kMethod + "costsPerMonth must hold 12 costs");
        }
        std::copy(costs.begin(), costs.end(), row->costs.begin());
      });
  return row;
}

// Each item of the optional array key of object, read by load.
template <typename Item, typename Load>
std::vector<std::shared_ptr<Item>> loadItems(const json& object, const std::string& key,
                                             Load load) {
  std::vector<std::shared_ptr<Item>> items;
  bool found = false;
  const json& array = Helper::findOptional(found, object, key);
  if (found) {
    for (const json& item : Helper::asArray(array)) items.push_back(load(item));
  }
  return items;
}

}  // namespace

// LinkAddonFactory makes a LinkAddonPumping for the type that chooses this reader.
void JsonLoadLinkAddonPumping::loadSpecific(const json& object, LinkAddon& addon) const {
  auto& pumping = static_cast<LinkAddonPumping&>(addon);
  pumping.addToPumpVector(loadItems<PumpingAddon>(object, "pumps", loadPump));
  pumping.addToFlowCostVector(loadItems<PumpingFlowCost>(object, "flowCosts", loadFlowCost));
}
