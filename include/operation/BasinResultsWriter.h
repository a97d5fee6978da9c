#pragma once

#include "operation/ResultsWriter.h"

// A basin writes nothing of its own: it has no incoming links, and what leaves it is written by
// its outgoing links.
class BasinResultsWriter : public ResultsWriter {
 public:
  void write(const Date&, unsigned int, const std::shared_ptr<Element>&, const Interval&,
             bool) override {}
};
