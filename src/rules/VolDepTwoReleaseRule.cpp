#include "rules/VolDepTwoReleaseRule.h"

#include <algorithm>
#include <stdexcept>
#include <vector>

#include "core/Element.h"
#include "core/Scenario.h"

namespace {

using Slot = std::vector<std::vector<double>>;

bool hasNegative(const std::vector<double>& values) {
  return std::any_of(values.begin(), values.end(), [](double v) { return v < 0.0; });
}

bool hasNegative(const Slot& slot) {
  return std::any_of(slot.begin(), slot.end(), [](const auto& row) { return hasNegative(row); });
}

bool hasShape(const Slot& slot, std::size_t rows, std::size_t columns) {
  return slot.size() == rows && std::all_of(slot.begin(), slot.end(), [columns](const auto& row) {
           return row.size() == columns;
         });
}

unsigned int idOf(const std::shared_ptr<Element>& element) {
  return element ? element->getId() : 0;
}

}  // namespace

double VolDepTwoReleaseRule::getRelease(const Date& date) const {
  const auto& limits1 = volDepTwoReleaseStruct.volumePercentageD1;
  const auto& limits2 = volDepTwoReleaseStruct.volumePercentageD2;
  if (!reservoirDependency1 || !reservoirDependency2 || limits1.empty() || limits2.empty()) {
    return 0.0;
  }
  const auto limit = [](double value) { return value; };
  return doGetRelease(date,
                      chosenStep(limits1, limit, volumePercentage(reservoirDependency1, date)),
                      chosenStep(limits2, limit, volumePercentage(reservoirDependency2, date)));
}

void VolDepTwoReleaseRule::loadAfterScenarioInstantiated(
    const std::shared_ptr<Scenario>& scenario) {
  setReservoirDependency1(findReservoir(*scenario, reservoirDependencyId1));
  setReservoirDependency2(findReservoir(*scenario, reservoirDependencyId2));
}

std::vector<std::shared_ptr<Element>> VolDepTwoReleaseRule::getDependencies() const {
  std::vector<std::shared_ptr<Element>> result;
  for (const auto& reservoir : {reservoirDependency1, reservoirDependency2}) {
    if (reservoir) result.push_back(reservoir);
  }
  return result;
}

std::shared_ptr<ReleaseRule> VolDepTwoReleaseRule::copy() const {
  auto rule = std::static_pointer_cast<VolDepTwoReleaseRule>(ReleaseRule::copy());
  rule->reservoirDependencyId1 = reservoirDependencyId1;
  rule->reservoirDependencyId2 = reservoirDependencyId2;
  rule->volDepTwoReleaseStruct = volDepTwoReleaseStruct;
  return rule;
}

void VolDepTwoReleaseRule::setVolDepTwoReleaseStruct(const VolDepTwoReleaseStruct& table) {
  const auto& limits1 = table.volumePercentageD1;
  const auto& limits2 = table.volumePercentageD2;
  if (!std::is_sorted(limits1.begin(), limits1.end()) ||
      !std::is_sorted(limits2.begin(), limits2.end())) {
    throw std::invalid_argument(ownerOfTableTexts() +
                                ":setVolDepTwoReleaseStruct(): The volume percentage values must "
                                "be in ascending order");
  }
  const auto& slots = table.releases;
  if (std::any_of(slots.begin(), slots.end(), [](const Slot& s) { return hasNegative(s); })) {
    throw std::invalid_argument(ownerOfTableTexts() +
                                ":setVolDepTwoReleaseStruct(): The releases has a negative value.");
  }
  if (!std::all_of(slots.begin(), slots.end(),
                   [&](const Slot& s) { return hasShape(s, limits1.size(), limits2.size()); })) {
    throw std::invalid_argument(
        "VolDepTwoReleaseRule::setVolDepTwoReleaseStruct(): each month slot must have one row per "
        "limit of D1 and one release per limit of D2");
  }
  volDepTwoReleaseStruct = table;
}

void VolDepTwoReleaseRule::setReservoirDependency(const std::shared_ptr<Element>& reservoirD1,
                                                  const std::shared_ptr<Element>& reservoirD2) {
  if (!reservoirD1) {
    throw std::invalid_argument(ownerOfDependencyTexts() +
                                "::setReservoirDenpendency: the reservoirD1 is nullptr");
  }
  if (!reservoirD2) {
    throw std::invalid_argument(ownerOfDependencyTexts() +
                                "::setReservoirDenpendency: the reservoirD2 is nullptr");
  }
  if (!isReservoir(reservoirD1)) {
    throw std::invalid_argument(ownerOfDependencyTexts() +
                                "::setReservoirDependency: The element reservoirD1 is not a "
                                "reservoir");
  }
  if (!isReservoir(reservoirD2)) {
    throw std::invalid_argument(ownerOfDependencyTexts() +
                                "::setReservoirDependency: The element reservoirD2 is not a "
                                "reservoir");
  }
  setReservoirDependency1(reservoirD1);
  setReservoirDependency2(reservoirD2);
}

void VolDepTwoReleaseRule::setReservoirDependency1(const std::shared_ptr<Element>& reservoir) {
  reservoirDependency1 = reservoir;
  reservoirDependencyId1 = idOf(reservoir);
}

void VolDepTwoReleaseRule::setReservoirDependency2(const std::shared_ptr<Element>& reservoir) {
  reservoirDependency2 = reservoir;
  reservoirDependencyId2 = idOf(reservoir);
}

void VolDepTwoReleaseRule::setReservoirDependencyId(unsigned int id1, unsigned int id2) {
  reservoirDependencyId1 = id1;
  reservoirDependencyId2 = id2;
}
