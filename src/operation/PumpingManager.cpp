#include "operation/PumpingManager.h"

#include <cfloat>
#include <cmath>

#include "common/NumericalUtils.h"
#include "common/PeriodWalker.h"
#include "core/ElementsFilter.h"
#include "core/LinkAddonPumping.h"
#include "core/Scenario.h"
#include "hydrology/HydrologicalBalance.h"

namespace {

constexpr double kCubicMetresPerHm3 = 1000000.0;

bool meets(const TransientPumpingPeriod& a, const TransientPumpingPeriod& b) {
  return a.initialValue < b.finalValue && b.initialValue < a.finalValue;
}

const LinkAddonPumping& pumpingOf(const Link& link) {
  return static_cast<const LinkAddonPumping&>(*link.getLinkAddon());
}

}  // namespace

double PumpingManager::m3sToM3(double flow, const Date& date) {
  return m3sToHM3(flow, date) * kCubicMetresPerHm3;
}

double PumpingManager::m3sToHM3(double flow, const Date& date) {
  return HydrologicalBalanceMonthly().hm3(date, flow);
}

const std::vector<ElementType>& PumpingManager::getEnumDemandTypes() {
  static const std::vector<ElementType> types = {ElementType::humanDemand, ElementType::animalDemand,
                                                 ElementType::industrialDemand,
                                                 ElementType::irrigationDemand};
  return types;
}

bool PumpingManager::hasPeriodIntersection(
    const std::shared_ptr<TransientPumpingPeriod>& period,
    const std::vector<std::shared_ptr<TransientPumpingPeriod>>& periods) {
  for (const auto& other : periods) {
    if (other == period || !other->isEnabled()) continue;
    if (meets(*period, *other)) return true;
  }
  return false;
}

double PumpingManager::getTotalSupplyableFlow(const TransientPumps& pumps, const Link& link,
                                              std::string& errorName) {
  double total = 0.0;
  for (const auto& pump : pumps) {
    if (!pump->isEnabled()) break;
    double minutes = 0.0;
    for (const auto& period : pump->periods) {
      if (!period->isEnabled()) break;
      if (hasPeriodIntersection(period, pump->periods)) {
        errorName = link.getName();
        return -1.0;
      }
      minutes += period->finalValue - period->initialValue;
    }
    total += minutes / 60.0 * pump->flow;
  }
  return total;
}

std::vector<double> PumpingManager::getVectorOfTotalSupplyableFlow(
    const std::vector<TransientPumps>& matrix, const std::vector<std::shared_ptr<Link>>& links,
    std::string& errorName) {
  std::vector<double> totals;
  for (std::size_t i = 0; i < matrix.size() && i < links.size(); ++i) {
    totals.push_back(getTotalSupplyableFlow(matrix[i], *links[i], errorName));
    if (totals.back() < 0.0) break;
  }
  return totals;
}

bool PumpingManager::canAddNewRowToTransientPumpingFlowCostVector(
    const std::vector<std::shared_ptr<TransientPumpingFlowCost>>& rows, int row, int lastRow) {
  const int size = static_cast<int>(rows.size());
  if (row < 0) row += size;
  if (lastRow < 0) lastRow += size;
  if (lastRow >= 3) return row < lastRow;
  const auto enabled = [&](int index) {
    return index >= 0 && index < size && rows[static_cast<std::size_t>(index)]->isEnabled();
  };
  return row < lastRow && enabled(0) && enabled(1) && enabled(lastRow);
}

int PumpingManager::updateTransientPumpingFlowCostVector(
    std::vector<std::shared_ptr<TransientPumpingFlowCost>>& rows, std::size_t row,
    std::size_t column, double value) {
  if (std::fabs(value - (-1.0)) <= DBL_EPSILON) value = rows.at(row)->getColumn(column);
  if (value == Serie::kEmptyValue) return 0;
  if (row > 0 && value <= rows[row - 1]->getColumn(column)) return -1;
  if (row + 1 < rows.size() && rows[row + 1]->isEnabled() &&
      value >= rows[row + 1]->getColumn(column)) {
    return 1;
  }
  rows[row]->setColumn(column, value);
  return 0;
}

std::vector<std::shared_ptr<PumpingAddon>> PumpingManager::convertTransientToPumpingAddonVector(
    const TransientPumps& pumps) {
  std::vector<std::shared_ptr<PumpingAddon>> result;
  for (const auto& pump : pumps) {
    if (!pump->isEnabled()) continue;
    pump->dumpToSource();
    result.push_back(pump->getSource());
  }
  return result;
}

std::vector<std::shared_ptr<PumpingFlowCost>> PumpingManager::convertTransientToPumpingFlowCost(
    const std::vector<std::shared_ptr<TransientPumpingFlowCost>>& rows) {
  std::vector<std::shared_ptr<PumpingFlowCost>> result;
  for (const auto& row : rows) {
    if (!row->isEnabled()) continue;
    row->dumpToSource();
    result.push_back(row->getSource());
  }
  return result;
}

std::vector<PumpingManager::TransientPumps> PumpingManager::makeTransientPumpingAddonMatrix(
    const std::vector<std::shared_ptr<Link>>& links) {
  std::vector<TransientPumps> matrix;
  for (const auto& link : links) {
    TransientPumps pumps;
    if (link->getLinkAddon()->getType() == LinkAddonType::pumping) {
      for (const auto& pump : pumpingOf(*link).getPumpVector()) {
        pumps.push_back(std::make_shared<TransientPumpingAddon>(pump, true));
      }
    }
    matrix.push_back(pumps);
  }
  return matrix;
}

void PumpingManager::fillSeriesMatrices(unsigned int runIndex,
                                        const std::shared_ptr<Scenario>& scenario,
                                        const std::vector<std::shared_ptr<Link>>& links,
                                        Matrix& flows, Matrix& costs, Matrix& deficits) {
  const Interval run = scenario->calcVectorOfIntervals().at(runIndex);
  const auto demands = ElementsFilter::filterByEnabledElements(ElementsFilter::filterByType(
      scenario->getElements(), {getEnumDemandTypes().begin(), getEnumDemandTypes().end()}));
  PeriodWalker::forEach(run, [&](const Date& date) {
    std::vector<double> flowRow, costRow;
    for (const auto& link : links) {
      flowRow.push_back(link->getOutputSerie(SerieType::inflow, runIndex)->getValue(date));
      costRow.push_back(link->getOutputSerie(SerieType::pumpingCost, runIndex)->getValue(date));
    }
    flows.push_back(flowRow);
    costs.push_back(costRow);
    std::vector<double> deficitRow(getEnumDemandTypes().size(), 0.0);
    for (const auto& demand : demands) {
      for (std::size_t k = 0; k < getEnumDemandTypes().size(); ++k) {
        if (getEnumDemandTypes()[k] != demand->getType()) continue;
        deficitRow[k] += demand->getOutputSerie(SerieType::supplyShortage, runIndex)->getValue(date);
      }
    }
    deficits.push_back(deficitRow);
  });
}

PumpingManager::Matrix PumpingManager::evalDeficitsCosts(const std::vector<double>& costs,
                                                         const Matrix& matrix) {
  Matrix result;
  for (const auto& row : matrix) {
    std::vector<double> products;
    for (std::size_t k = 0; k < row.size() && k < costs.size(); ++k) {
      products.push_back(row[k] * costs[k]);
    }
    result.push_back(products);
  }
  return result;
}

void PumpingManager::evalPumping(const Interval& interval, const std::vector<double>& totals,
                                 const std::vector<std::shared_ptr<Link>>& links,
                                 const Matrix& flows, Matrix& pumped, Matrix& costs,
                                 Matrix& surplus, double divisor) {
  std::vector<double> flowRow;
  std::vector<std::size_t> columns;
  for (std::size_t i = 0; i < totals.size(); ++i) {
    if (totals[i] < 0.0) continue;
    flowRow.push_back(totals[i] / divisor);
    columns.push_back(i);
  }
  pumped.assign(interval.period(), flowRow);
  std::size_t dateIndex = 0;
  PeriodWalker::forEach(interval, [&](const Date& date) {
    std::vector<double> costRow, surplusRow;
    for (std::size_t c = 0; c < columns.size(); ++c) {
      const std::size_t link = columns[c];
      costRow.push_back(pumpingOf(*links.at(link)).getRegressionFlowCost(flowRow[c], date.getMonth()));
      surplusRow.push_back(
          NumericalUtils::subtractDoubles(flowRow[c], flows.at(dateIndex).at(link), 0.0));
    }
    costs.push_back(costRow);
    surplus.push_back(surplusRow);
    ++dateIndex;
  });
}
