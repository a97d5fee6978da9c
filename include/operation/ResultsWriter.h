#pragma once

#include <memory>

#include "common/Date.h"
#include "common/Interval.h"
#include "core/Element.h"

// Turns what the operation decided at a date into the result series of one element, in the
// window of the run. Called after the element's links have their flows.
class ResultsWriter {
 public:
  virtual ~ResultsWriter() = default;
  virtual void write(const Date& date, unsigned int windowIndex,
                     const std::shared_ptr<Element>& element, const Interval& interval,
                     bool zeroContribution) = 0;
};
