#include "operation/RuleReleaseAllocationFactory.h"

#include <functional>
#include <map>
#include <stdexcept>

#include "core/ElementSets.h"

namespace {

using Maker = std::function<std::shared_ptr<RuleReleaseDefaultAllocation>(
    const Interval&, const Date&, unsigned int)>;

const std::map<ElementType, Maker>& makers() {
  static const std::map<ElementType, Maker> table = [] {
    std::map<ElementType, Maker> result = {
        {ElementType::reservoir, RuleReleaseAllocationFactory::makeReservoirAllocation},
        {ElementType::junction, RuleReleaseAllocationFactory::makeJunctionAllocation},
        {ElementType::basin, RuleReleaseAllocationFactory::makeBasinAllocation},
    };
    for (ElementType demand : ElementSets::demands()) {
      result[demand] = RuleReleaseAllocationFactory::makeDemandAllocation;
    }
    return result;
  }();
  return table;
}

}  // namespace

std::shared_ptr<RuleReleaseDefaultAllocation> RuleReleaseAllocationFactory::make(
    ElementType type, const Interval& interval, const Date& date, unsigned int windowIndex) {
  auto it = makers().find(type);
  if (it == makers().end()) {
    throw std::invalid_argument("RuleRelaseAllocationFactory::make(): invalid elementType");
  }
  return it->second(interval, date, windowIndex);
}

std::shared_ptr<RuleReleaseDefaultAllocation> RuleReleaseAllocationFactory::makeReservoirAllocation(
    const Interval& interval, const Date& date, unsigned int windowIndex) {
  return std::make_shared<RuleReleaseReservoirAllocation>(interval, date, windowIndex);
}

std::shared_ptr<RuleReleaseDefaultAllocation> RuleReleaseAllocationFactory::makeJunctionAllocation(
    const Interval& interval, const Date& date, unsigned int windowIndex) {
  return std::make_shared<RuleReleaseJunctionAllocation>(interval, date, windowIndex);
}

std::shared_ptr<RuleReleaseDefaultAllocation> RuleReleaseAllocationFactory::makeBasinAllocation(
    const Interval& interval, const Date& date, unsigned int windowIndex) {
  return std::make_shared<RuleReleaseBasinAllocation>(interval, date, windowIndex);
}

std::shared_ptr<RuleReleaseDefaultAllocation> RuleReleaseAllocationFactory::makeDemandAllocation(
    const Interval& interval, const Date& date, unsigned int windowIndex) {
  return std::make_shared<RuleReleaseDemandAllocation>(interval, date, windowIndex);
}
