#include "rules/OptVolDepTwoReleaseRule.h"

#include <algorithm>
#include <numeric>
#include <stdexcept>

namespace {

using Nest = std::vector<std::vector<std::vector<double>>>;

template <typename Visit>
void forEachCell(Nest& nest, Visit visit) {
  for (auto& month : nest) {
    for (auto& row : month) {
      for (double& cell : row) visit(cell);
    }
  }
}

// The positions of values in the order a stable ascending sort puts them.
std::vector<std::size_t> sortedOrder(const std::vector<double>& values) {
  std::vector<std::size_t> order(values.size());
  std::iota(order.begin(), order.end(), 0);
  std::stable_sort(order.begin(), order.end(),
                   [&](std::size_t a, std::size_t b) { return values[a] < values[b]; });
  return order;
}

std::vector<double> permuted(const std::vector<double>& values,
                             const std::vector<std::size_t>& order) {
  std::vector<double> result;
  for (std::size_t i : order) result.push_back(values[i]);
  return result;
}

// Sorts both percentage lists and carries the releases with their rows (first list) and columns
// (second list).
VolDepTwoReleaseStruct sortedTable(const VolDepTwoReleaseStruct& table) {
  const auto rows = sortedOrder(table.volumePercentageD1);
  const auto columns = sortedOrder(table.volumePercentageD2);
  VolDepTwoReleaseStruct sorted;
  sorted.volumePercentageD1 = permuted(table.volumePercentageD1, rows);
  sorted.volumePercentageD2 = permuted(table.volumePercentageD2, columns);
  for (const auto& month : table.releases) {
    std::vector<std::vector<double>> slot;
    for (std::size_t i : rows) slot.push_back(permuted(month[i], columns));
    sorted.releases.push_back(slot);
  }
  return sorted;
}

}  // namespace

unsigned int OptVolDepTwoReleaseRule::getNumOfDecisionVars() const {
  const auto marks = [](const std::vector<double>& values) {
    return std::count_if(values.begin(), values.end(), isMarked);
  };
  auto count = marks(toOptTable.volumePercentageD1) + marks(toOptTable.volumePercentageD2);
  for (const auto& month : toOptTable.releases) {
    for (const auto& row : month) count += marks(row);
  }
  return static_cast<unsigned int>(count);
}

void OptVolDepTwoReleaseRule::setDecisionVars(const std::vector<double>& values) {
  checkDecisionVarsSize(values, "OptVolDepTwoReleaseRule");
  auto value = values.begin();
  VolDepTwoReleaseStruct table = toOptTable;
  for (auto* limits : {&table.volumePercentageD1, &table.volumePercentageD2}) {
    for (double& limit : *limits) {
      if (isMarked(limit)) limit = *value++ * 100.0;
    }
  }
  forEachCell(table.releases, [&](double& cell) {
    if (isMarked(cell)) cell = *value++ * maxRelease;
  });
  working().setVolDepTwoReleaseStruct(sortedTable(table));
}

std::shared_ptr<ReleaseRule> OptVolDepTwoReleaseRule::convertToReleaseRule() const {
  auto rule = getReleaseRuleInstance();
  rule->setReservoirDependencyId(working().getReservoirDependencyId1(),
                                 working().getReservoirDependencyId2());
  rule->setVolDepTwoReleaseStruct(working().getVolDepTwoReleaseStruct());
  return rule;
}

void OptVolDepTwoReleaseRule::setOptVolDepTwoReleaseStruct(const VolDepTwoReleaseStruct& table) {
  bool negative = false;
  for (const auto& month : table.releases) {
    for (const auto& row : month) {
      negative |= std::any_of(row.begin(), row.end(),
                              [](double cell) { return cell < 0.0 && !isMarked(cell); });
    }
  }
  if (negative) {
    throw std::invalid_argument(
        "OptVolDepTwoReleaseRule:setVolDepTwoReleaseStruct(): The releases has a negative value.");
  }
  toOptTable = table;
}

void OptVolDepTwoReleaseRule::setMaxRelease(double value) {
  checkMaxRelease(value, "OptVolDepTwoReleaseRule");
  maxRelease = value;
}

void OptVolDepTwoReleaseRule::copyOptInto(OptVolDepTwoReleaseRule& target) const {
  target.toOptTable = toOptTable;
  target.maxRelease = maxRelease;
}
