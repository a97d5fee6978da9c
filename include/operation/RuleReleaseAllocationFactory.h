#pragma once

#include <memory>

#include "operation/RuleReleaseDefaultAllocation.h"

// Makes the allocator of a node kind for one date. Throws std::invalid_argument
// "RuleRelaseAllocationFactory::make(): invalid elementType" for a kind without one.
class RuleReleaseAllocationFactory {
 public:
  static std::shared_ptr<RuleReleaseDefaultAllocation> make(ElementType type,
                                                            const Interval& interval,
                                                            const Date& date,
                                                            unsigned int windowIndex);
  static std::shared_ptr<RuleReleaseDefaultAllocation> makeReservoirAllocation(
      const Interval& interval, const Date& date, unsigned int windowIndex);
  static std::shared_ptr<RuleReleaseDefaultAllocation> makeJunctionAllocation(
      const Interval& interval, const Date& date, unsigned int windowIndex);
  static std::shared_ptr<RuleReleaseDefaultAllocation> makeBasinAllocation(
      const Interval& interval, const Date& date, unsigned int windowIndex);
  static std::shared_ptr<RuleReleaseDefaultAllocation> makeDemandAllocation(
      const Interval& interval, const Date& date, unsigned int windowIndex);
};
