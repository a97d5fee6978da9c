#include "operation/ReservoirResultsWriter.h"

#include "common/NumericalUtils.h"
#include "core/ReservoirOperationUtils.h"

namespace {

void put(const std::shared_ptr<Reservoir>& reservoir, SerieType type, unsigned int windowIndex,
         const Date& date, double value) {
  reservoir->getOutputSerie(type, windowIndex)->setValue(date, value);
}

}  // namespace

void ReservoirResultsWriter::write(const Date& date, unsigned int windowIndex,
                                   const std::shared_ptr<Element>& element,
                                   const Interval& interval, bool zeroContribution) {
  const auto reservoir = std::static_pointer_cast<Reservoir>(element);
  const ReservoirInfo& info = reservoir->getReservoirInfo();
  const HydrologicalBalance& hb = balanceOf(interval);

  const double initial =
      ReservoirOperationUtils::currentReservoirVolume(reservoir, interval, date, windowIndex);
  const double upstream = hb.calcTotalUpstreamVolume(reservoir, date, windowIndex);
  const double downstream = hb.calcTotalDownStreamVolume(reservoir, date, windowIndex);
  double final = hb.balance(reservoir, date, initial, zeroContribution, upstream, downstream);
  if (final < 0.0) final = 0.0;
  if (NumericalUtils::subtractDoubles(info.maxVol, final, 0.0001) < 0.0) final = info.maxVol;

  put(reservoir, SerieType::initialVolume, windowIndex, date, initial);
  put(reservoir, SerieType::finalVolume, windowIndex, date, final);
  put(reservoir, SerieType::upstreamControlledFlow, windowIndex, date, hb.m3s(date, upstream));
  put(reservoir, SerieType::upstreamControlledVolume, windowIndex, date, upstream);

  const double naturalFlow =
      zeroContribution ? 0.0
                       : reservoir->getInputSerie(SerieType::naturalIncrementalFlow)->getValue(date);
  const double uncontrolledVolume = zeroContribution ? 0.0 : hb.hm3(date, naturalFlow);
  put(reservoir, SerieType::upstreamUncontrolledVolume, windowIndex, date, uncontrolledVolume);
  put(reservoir, SerieType::upstreamUncontrolledFlow, windowIndex, date, naturalFlow);

  const double surface =
      HydrologicalBalance::area(HydrologicalBalance::areaCurve(reservoir), initial);
  const double evaporated = HydrologicalBalance::volume(
      reservoir->getInputSerie(SerieType::evaporation)->getValue(date), surface);
  const double precipitated =
      zeroContribution ? 0.0
                       : HydrologicalBalance::volume(
                             reservoir->getInputSerie(SerieType::precipitation)->getValue(date),
                             surface);
  put(reservoir, SerieType::evaporatedVolume, windowIndex, date, evaporated);
  put(reservoir, SerieType::precipitatedVolume, windowIndex, date, precipitated);
  put(reservoir, SerieType::area, windowIndex, date, surface);
  put(reservoir, SerieType::level, windowIndex, date,
      HydrologicalBalance::level(HydrologicalBalance::levelCurve(reservoir), initial));

  const double available =
      (initial - info.minVol) + uncontrolledVolume + upstream + precipitated - evaporated;
  const double usefulCapacity = NumericalUtils::subtractDoubles(info.maxVol, info.minVol, 1e-6);
  double excess = NumericalUtils::subtractDoubles(available, usefulCapacity, 1e-6);
  if (excess < 0.0) excess = 0.0;
  writeReleaseAndSpill(reservoir, excess, hb, date, windowIndex);

  const auto valueOf = [&](SerieType type) {
    return reservoir->getOutputSerie(type, windowIndex)->getValue(date);
  };
  put(reservoir, SerieType::outflow, windowIndex, date,
      valueOf(SerieType::releasedFlow) + valueOf(SerieType::spilledFlow));
  put(reservoir, SerieType::outflowVolume, windowIndex, date,
      valueOf(SerieType::releasedVolume) + valueOf(SerieType::spilledVolume));
}

void ReservoirResultsWriter::writeReleased(const std::shared_ptr<Reservoir>& reservoir,
                                           const HydrologicalBalance& hb, const Date& date,
                                           unsigned int windowIndex, double released,
                                           double spilled) {
  put(reservoir, SerieType::releasedVolume, windowIndex, date, released);
  put(reservoir, SerieType::releasedFlow, windowIndex, date, hb.m3s(date, released));
  put(reservoir, SerieType::spilledVolume, windowIndex, date, spilled);
  put(reservoir, SerieType::spilledFlow, windowIndex, date, hb.m3s(date, spilled));
}

void ReservoirRuleResultsWriter::writeReleaseAndSpill(const std::shared_ptr<Reservoir>& reservoir,
                                                      double excess, const HydrologicalBalance& hb,
                                                      const Date& date, unsigned int windowIndex) {
  const double released = hb.calcTotalDownStreamVolume(reservoir, date, windowIndex);
  double spilled = NumericalUtils::subtractDoubles(excess, released, 1e-6);
  if (spilled < 0.0) spilled = 0.0;
  writeReleased(reservoir, hb, date, windowIndex, released, spilled);
}
