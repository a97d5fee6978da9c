#include "core/LinkAddonPumping.h"

#include <stdexcept>

#include "common/Calendar.h"
#include "common/regression/RegressionTechniqueFactory.h"

LinkAddonPumping::LinkAddonPumping() : LinkAddon(LinkAddonType::pumping) {
  for (int month = 0; month < 12; ++month) {
    regressions.push_back(RegressionTechniqueFactory::make(RegressionType::cubicSpline));
  }
}

void LinkAddonPumping::addToPumpVector(const std::vector<std::shared_ptr<PumpingAddon>>& pumps) {
  pumpVector.insert(pumpVector.end(), pumps.begin(), pumps.end());
}

void LinkAddonPumping::addToFlowCostVector(
    const std::vector<std::shared_ptr<PumpingFlowCost>>& rows) {
  flowCostVector.insert(flowCostVector.end(), rows.begin(), rows.end());
}

void LinkAddonPumping::clearTables() {
  pumpVector.clear();
  flowCostVector.clear();
}

void LinkAddonPumping::regressionCalculation() {
  for (std::size_t month = 0; month < regressions.size(); ++month) {
    std::vector<Point2D> points;
    for (const auto& row : flowCostVector) points.push_back({row->flow, row->costs[month]});
    regressions[month]->calculate(points);
  }
}

double LinkAddonPumping::getRegressionFlowCost(double flow, unsigned int month) const {
  if (!Calendar::isValidMonth(month)) {
    throw std::invalid_argument("LinkAddonPumping::getRegressionFlowCost: invalid month");
  }
  return regressions[month - 1]->fit(flow);
}

std::shared_ptr<LinkAddon> LinkAddonPumping::copy() const {
  auto result = std::make_shared<LinkAddonPumping>();
  for (const auto& pump : pumpVector) {
    auto copied = std::make_shared<PumpingAddon>();
    copied->flow = pump->flow;
    copied->periods.clear();
    for (const auto& period : pump->periods) {
      copied->periods.push_back(std::make_shared<PumpingPeriod>(*period));
    }
    result->pumpVector.push_back(copied);
  }
  for (const auto& row : flowCostVector) {
    result->flowCostVector.push_back(std::make_shared<PumpingFlowCost>(*row));
  }
  return result;
}
