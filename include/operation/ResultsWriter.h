#pragma once

#include <memory>

#include "common/Date.h"
#include "common/Interval.h"
#include "core/Element.h"
#include "hydrology/HydrologicalBalance.h"

// Turns what the operation decided at a date into the result series of one element, in the
// window of the run. Called after the element's links have their flows.
class ResultsWriter {
 public:
  virtual ~ResultsWriter() = default;
  virtual void write(const Date& date, unsigned int windowIndex,
                     const std::shared_ptr<Element>& element, const Interval& interval,
                     bool zeroContribution) = 0;

 protected:
  // The balance of the interval's periodicity, made at the first call and kept: balances hold
  // nothing but their periodicity.
  const HydrologicalBalance& balanceOf(const Interval& interval) {
    const Periodicity periodicity = interval.getPeriodicity().getType();
    if (!balance || periodicity != balancePeriodicity) {
      balance = HydrologicalBalanceFactory::make(periodicity);
      balancePeriodicity = periodicity;
    }
    return *balance;
  }

 private:
  std::shared_ptr<HydrologicalBalance> balance;
  Periodicity balancePeriodicity{};
};
