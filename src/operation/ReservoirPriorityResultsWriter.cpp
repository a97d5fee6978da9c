#include "operation/ReservoirPriorityResultsWriter.h"

#include <algorithm>

#include "common/NumericalUtils.h"
#include "core/NetworkUtils.h"

void ReservoirPriorityResultsWriter::writeReleaseAndSpill(
    const std::shared_ptr<Reservoir>& reservoir, double excess, const HydrologicalBalance& hb,
    const Date& date, unsigned int windowIndex) {
  const double total = hb.calcTotalDownStreamVolume(reservoir, date, windowIndex);
  const double artificial =
      hb.hm3(date, NetworkUtils::downStreamArtificialSumFlow(reservoir, date, windowIndex));
  const double natural = total - artificial;
  const double spilled = std::max(0.0, std::min(natural, excess));
  const double rest = natural - spilled;
  double released = artificial;
  if (!NumericalUtils::compareDoubles(rest, 0.0, 1e-6)) released += rest;
  writeReleased(reservoir, hb, date, windowIndex, released, spilled);
}
