#pragma once

#include <array>
#include <memory>
#include <vector>

#include "common/regression/RegressionTechnique.h"
#include "core/LinkAddon.h"

// A span of the day in which a pump runs, in minutes from midnight.
struct PumpingPeriod {
  unsigned int initialValue = 0;    // min
  unsigned int finalValue = 1440;   // min
};

// One pump: its flow and the periods of the day in which it runs.
struct PumpingAddon {
  PumpingAddon() : periods{std::make_shared<PumpingPeriod>()} {}
  double flow = 0.0;  // m³/s
  std::vector<std::shared_ptr<PumpingPeriod>> periods;
};

// One row of a pumping link's cost table: a flow and what pumping it costs in each month.
struct PumpingFlowCost {
  double flow = 0.0;                   // m³/s
  std::array<double, 12> costs = {};   // R$, January first
};

// The add-on of a pumping line: its pumps and the table of cost against flow, month by month,
// interpolated in straight lines between the rows of the table.
class LinkAddonPumping : public LinkAddon {
 public:
  LinkAddonPumping();

  const std::vector<std::shared_ptr<PumpingAddon>>& getPumpVector() const { return pumpVector; }
  const std::vector<std::shared_ptr<PumpingFlowCost>>& getFlowCostVector() const {
    return flowCostVector;
  }
  void addToPumpVector(const std::vector<std::shared_ptr<PumpingAddon>>& pumps);
  void addToFlowCostVector(const std::vector<std::shared_ptr<PumpingFlowCost>>& rows);
  void clearTables();

  // Prepares each month's interpolation from the cost table; run before every run and study.
  void regressionCalculation();
  // The cost of pumping flow (m³/s) in month 1..12, R$. Throws std::invalid_argument
  // "LinkAddonPumping::getRegressionFlowCost: invalid month" for another month.
  double getRegressionFlowCost(double flow, unsigned int month) const;

  // Copies both tables; the copy prepares its own interpolations.
  std::shared_ptr<LinkAddon> copy() const override;

 private:
  std::vector<std::shared_ptr<PumpingAddon>> pumpVector;
  std::vector<std::shared_ptr<PumpingFlowCost>> flowCostVector;
  std::vector<std::shared_ptr<RegressionTechnique>> regressions;
};

// A link add-on that marks flow propagation along the link; it changes nothing in a run.
class LinkAddonPropagation : public LinkAddon {
 public:
  LinkAddonPropagation() : LinkAddon(LinkAddonType::propagation) {}
  std::shared_ptr<LinkAddon> copy() const override {
    return std::make_shared<LinkAddonPropagation>(*this);
  }
};
