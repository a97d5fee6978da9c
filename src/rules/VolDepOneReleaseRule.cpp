#include "rules/VolDepOneReleaseRule.h"

#include <algorithm>
#include <stdexcept>

#include "common/NumericalUtils.h"
#include "core/Element.h"
#include "core/Scenario.h"

namespace {

bool hasNegativeRelease(const VolDepOneReleaseStruct& row) {
  return std::any_of(row.releases.begin(), row.releases.end(), [](double v) { return v < 0.0; });
}

}  // namespace

double VolDepOneReleaseRule::getRelease(const Date& date) const {
  if (!reservoirDependency || vectorOfVolDepOneReleaseStruct.empty()) return 0.0;
  const auto limitOf = [](const VolDepOneReleaseStruct& row) { return row.percentage; };
  const double percent = volumePercentage(reservoirDependency, date);
  return doGetRelease(date, chosenStep(vectorOfVolDepOneReleaseStruct, limitOf, percent));
}

void VolDepOneReleaseRule::loadAfterScenarioInstantiated(
    const std::shared_ptr<Scenario>& scenario) {
  reservoirDependency = findReservoir(*scenario, reservoirDependencyId);
  if (!reservoirDependency) reservoirDependencyId = 0;
}

std::vector<std::shared_ptr<Element>> VolDepOneReleaseRule::getDependencies() const {
  if (!reservoirDependency) return {};
  return {reservoirDependency};
}

std::shared_ptr<ReleaseRule> VolDepOneReleaseRule::copy() const {
  auto rule = std::static_pointer_cast<VolDepOneReleaseRule>(ReleaseRule::copy());
  rule->reservoirDependencyId = reservoirDependencyId;
  rule->vectorOfVolDepOneReleaseStruct = vectorOfVolDepOneReleaseStruct;
  return rule;
}

void VolDepOneReleaseRule::setVectorOfVolDepOneReleaseStruct(
    const std::vector<VolDepOneReleaseStruct>& rows) {
  if (std::any_of(rows.begin(), rows.end(), hasNegativeRelease)) {
    throw std::invalid_argument(textPrefix() +
                                "VolDepOneReleaseRule::setVolumePeriodicReleaseStr(): All values "
                                "of releases must be positive");
  }
  for (std::size_t row = 1; row < rows.size(); ++row) {
    if (NumericalUtils::subtractDoubles(rows[row].percentage, rows[row - 1].percentage,
                                        kTolerance) < 0.0) {
      throw std::invalid_argument(textPrefix() +
                                  "VolDepOneReleaseRule:setVolumePeriodicReleaseStr(): The volume "
                                  "percentage values must be in ascending order.");
    }
  }
  vectorOfVolDepOneReleaseStruct = rows;
}

void VolDepOneReleaseRule::setReservoirDependency(const std::shared_ptr<Element>& reservoir) {
  if (!reservoir) {
    throw std::invalid_argument(textPrefix() +
                                "VolDepOneReleaseRule::setReservoirDenpendency: the reservoir is "
                                "nullptr");
  }
  if (!isReservoir(reservoir)) {
    throw std::invalid_argument(textPrefix() +
                                "VolDepOneReleaseRule::setReservoirDependency: The element is not "
                                "a reservoir");
  }
  reservoirDependency = reservoir;
  reservoirDependencyId = reservoir->getId();
}
