#include "core/TransientPumping.h"

#include <algorithm>

#include "common/Serie.h"

TransientPumpingPeriod::TransientPumpingPeriod(std::shared_ptr<PumpingPeriod> source, bool enabled)
    : TransientPumpingStructure(std::move(source)),
      initialValue(getSource() ? getSource()->initialValue : 0),
      finalValue(getSource() ? getSource()->finalValue : 1440),
      enabled(enabled) {}

void TransientPumpingPeriod::dumpToSource() {
  if (!getSource()) mutableSource() = std::make_shared<PumpingPeriod>();
  mutableSource()->initialValue = initialValue;
  mutableSource()->finalValue = finalValue;
}

TransientPumpingAddon::TransientPumpingAddon(std::shared_ptr<PumpingAddon> source, bool enabled)
    : TransientPumpingStructure(std::move(source)),
      flow(getSource() ? getSource()->flow : 0.0),
      enabled(enabled) {
  if (!getSource()) return;
  for (const auto& period : getSource()->periods) {
    periods.push_back(std::make_shared<TransientPumpingPeriod>(period, true));
  }
}

void TransientPumpingAddon::dumpToSource() {
  if (!getSource()) mutableSource() = std::make_shared<PumpingAddon>();
  mutableSource()->flow = flow;
  mutableSource()->periods.clear();
  for (const auto& period : periods) {
    if (!period->isEnabled()) continue;
    period->dumpToSource();
    mutableSource()->periods.push_back(period->getSource());
  }
}

TransientPumpingFlowCost::TransientPumpingFlowCost(std::shared_ptr<PumpingFlowCost> source)
    : TransientPumpingStructure(std::move(source)), flow(0.0), costs{} {
  if (getSource()) {
    flow = getSource()->flow;
    costs = getSource()->costs;
  }
}

void TransientPumpingFlowCost::init() {
  flow = Serie::kEmptyValue;
  costs.fill(Serie::kEmptyValue);
}

void TransientPumpingFlowCost::dumpToSource() {
  if (!getSource()) mutableSource() = std::make_shared<PumpingFlowCost>();
  mutableSource()->flow = flow;
  mutableSource()->costs = costs;
}

bool TransientPumpingFlowCost::isEnabled() const {
  return flow != Serie::kEmptyValue &&
         std::none_of(costs.begin(), costs.end(),
                      [](double cost) { return cost == Serie::kEmptyValue; });
}

double TransientPumpingFlowCost::getColumn(std::size_t column) const {
  return column == 0 ? flow : costs.at(column - 1);
}

void TransientPumpingFlowCost::setColumn(std::size_t column, double value) {
  if (column == 0) {
    flow = value;
  } else {
    costs.at(column - 1) = value;
  }
}
