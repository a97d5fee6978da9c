#pragma once

#include "operation/ResultsWriter.h"

// A link loses in transit the percentage of its inflow given by its input "Perda em trânsito"
// and passes the rest on as "Vazão efluente" (never below zero); its add-on then writes what it
// writes.
class LinkResultsWriter : public ResultsWriter {
 public:
  void write(const Date& date, unsigned int windowIndex, const std::shared_ptr<Element>& element,
             const Interval& interval, bool zeroContribution) override;
};
