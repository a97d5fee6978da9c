#pragma once

#include <memory>

#include "operation/ReservoirResultsWriter.h"

// In a priority operation the water a reservoir sends down its natural links counts as spill as
// far as the reservoir was over its capacity, and the rest, with all that left by artificial
// links, as released. A full reservoir without natural links therefore never spills.
class ReservoirPriorityResultsWriter : public ReservoirResultsWriter {
 protected:
  void writeReleaseAndSpill(const std::shared_ptr<Reservoir>& reservoir, double excess,
                            const HydrologicalBalance& hb, const Date& date,
                            unsigned int windowIndex) override;
};
