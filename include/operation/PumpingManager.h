#pragma once

#include <memory>
#include <string>
#include <vector>

#include "common/Date.h"
#include "common/Interval.h"
#include "core/Link.h"
#include "core/TransientPumping.h"

class Scenario;

// The pumping study a user runs on a finished scenario: how much the pumps of each line can
// supply, the editing rules of the cost tables, and the series matrices of a study.
class PumpingManager {
 public:
  using Matrix = std::vector<std::vector<double>>;
  using TransientPumps = std::vector<std::shared_ptr<TransientPumpingAddon>>;

  // m³/s over the date's month as m³ / as hm³.
  static double m3sToM3(double flow, const Date& date);
  static double m3sToHM3(double flow, const Date& date);
  // The demand kinds of a study, in their fixed order: human, animal, industrial, irrigation.
  static const std::vector<ElementType>& getEnumDemandTypes();

  // Whether period meets another enabled period of periods (touching ends do not meet).
  static bool hasPeriodIntersection(const std::shared_ptr<TransientPumpingPeriod>& period,
                                    const std::vector<std::shared_ptr<TransientPumpingPeriod>>& periods);
  // Hours of running per day times flow, summed over the pumps up to the first disabled one,
  // m³/s·h. -1.0, with the link's name in errorName, when a pump's periods overlap.
  static double getTotalSupplyableFlow(const TransientPumps& pumps, const Link& link,
                                       std::string& errorName);
  // The same for each line; stops with -1.0 at the first line whose periods overlap.
  static std::vector<double> getVectorOfTotalSupplyableFlow(
      const std::vector<TransientPumps>& matrix, const std::vector<std::shared_ptr<Link>>& links,
      std::string& errorName);

  // Whether a row may be added after row (negative counts from the end) of a table whose last
  // row is lastRow: at least three rows must be complete first.
  static bool canAddNewRowToTransientPumpingFlowCostVector(
      const std::vector<std::shared_ptr<TransientPumpingFlowCost>>& rows, int row, int lastRow);
  // Writes value into a cell if each column still rises strictly down the table: 0 when written
  // (or nothing to do for an empty value), -1 when not above the row before, 1 when not below the
  // row after. A value of -1 re-tests what the cell holds.
  static int updateTransientPumpingFlowCostVector(
      std::vector<std::shared_ptr<TransientPumpingFlowCost>>& rows, std::size_t row,
      std::size_t column, double value);

  // The edited rows back into their sources, and the sources in a list.
  static std::vector<std::shared_ptr<PumpingAddon>> convertTransientToPumpingAddonVector(
      const TransientPumps& pumps);
  static std::vector<std::shared_ptr<PumpingFlowCost>> convertTransientToPumpingFlowCost(
      const std::vector<std::shared_ptr<TransientPumpingFlowCost>>& rows);
  // The pumps of each pumping line, as rows to edit.
  static std::vector<TransientPumps> makeTransientPumpingAddonMatrix(
      const std::vector<std::shared_ptr<Link>>& links);

  // For each date of run runIndex: the lines' flows and costs, and the shortage of each demand
  // kind summed over the enabled demands.
  static void fillSeriesMatrices(unsigned int runIndex, const std::shared_ptr<Scenario>& scenario,
                                 const std::vector<std::shared_ptr<Link>>& links, Matrix& flows,
                                 Matrix& costs, Matrix& deficits);
  // Each row of matrix times costs, element by element.
  static Matrix evalDeficitsCosts(const std::vector<double>& costs, const Matrix& matrix);
  // The flow each line could pump (its total spread over divisor parts) on every date, what
  // pumping it costs, and what it leaves over the flow the run sent.
  static void evalPumping(const Interval& interval, const std::vector<double>& totals,
                          const std::vector<std::shared_ptr<Link>>& links, const Matrix& flows,
                          Matrix& pumped, Matrix& costs, Matrix& surplus, double divisor);
};
