#include "operation/DemandResultsWriter.h"

#include <algorithm>

#include "common/NumericalUtils.h"
#include "core/ConfigurationHeader.h"
#include "core/Demand.h"
#include "core/NetworkUtils.h"
#include "hydrology/HydrologicalBalance.h"

void DemandResultsWriter::write(const Date& date, unsigned int windowIndex,
                                const std::shared_ptr<Element>& element, const Interval& interval,
                                bool) {
  const auto demand = std::static_pointer_cast<Demand>(element);
  const HydrologicalBalance& hb = balanceOf(interval);
  const auto put = [&](SerieType type, double value) {
    demand->getOutputSerie(type, windowIndex)->setValue(date, value);
  };

  const double inflow = NetworkUtils::upStreamSumFlow(demand, date, windowIndex);
  const double target = demand->getOutputSerie(SerieType::targetDemand, windowIndex)->getValue(date);
  put(SerieType::inflow, inflow);
  put(SerieType::targetDemandVolume, hb.hm3(date, target));
  put(SerieType::attendedDemand, inflow);
  put(SerieType::attendedDemandVolume, hb.hm3(date, inflow));
  put(SerieType::attendedDemandPercentage,
      NumericalUtils::compareDoubles(target, 0.0, 1e-6) ? 0.0 : inflow / target * 100.0);

  const double shortage = std::max(0.0, NumericalUtils::subtractDoubles(target, inflow, 1e-6));
  put(SerieType::supplyShortage, shortage);
  put(SerieType::supplyShortageVolume, hb.hm3(date, shortage));

  double returned = 0.0;
  for (const auto& link : demand->getEnabledDownstreamLinks()) {
    returned += demand->getDemandReturnPercentage(link) / 100.0 * inflow;
  }
  put(SerieType::outflow, returned);

  const double excess = std::max(0.0, NumericalUtils::subtractDoubles(inflow, target, 1e-6));
  put(SerieType::supplyExcess, excess);
  put(SerieType::supplyExcessVolume, hb.hm3(date, excess));

  const double rounded =
      NumericalUtils::getDoublePrecision(shortage, ConfigurationHeader::getPrecision());
  put(SerieType::supplyFailure, NumericalUtils::subtractDoubles(rounded, 0.0, 1e-6) > 0.0 ? 1.0 : 0.0);

  const double consumed = inflow - returned;
  put(SerieType::consumedDemand, consumed);
  put(SerieType::consumedDemandVolume, hb.hm3(date, consumed));
}
