#pragma once

#include "operation/ResultsWriter.h"

// A junction passes on the sum of what its incoming links deliver: "Vazão afluente" and
// "Vazão efluente" are both that sum.
class JunctionResultsWriter : public ResultsWriter {
 public:
  void write(const Date& date, unsigned int windowIndex, const std::shared_ptr<Element>& element,
             const Interval& interval, bool zeroContribution) override;
};
