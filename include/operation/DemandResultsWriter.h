#pragma once

#include "operation/ResultsWriter.h"

// What a demand makes of a period: what arrived counts as attended (also above the target), the
// shortage and excess against the target, the share returned through its outgoing links, and a
// failure when the shortage survives rounding to the project's precision.
class DemandResultsWriter : public ResultsWriter {
 public:
  void write(const Date& date, unsigned int windowIndex, const std::shared_ptr<Element>& element,
             const Interval& interval, bool zeroContribution) override;
};
