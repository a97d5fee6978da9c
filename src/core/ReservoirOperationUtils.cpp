#include "core/ReservoirOperationUtils.h"

#include "common/Calendar.h"

double ReservoirOperationUtils::currentReservoirVolume(const std::shared_ptr<Reservoir>& reservoir,
                                                       const Interval& interval, const Date& date,
                                                       unsigned int windowIndex) {
  if (date == interval.getBegin()) return reservoir->getReservoirInfo().initVol;
  return reservoir->getOutputSerie(SerieType::finalVolume, windowIndex)
      ->getValue(Calendar::decDate(date, interval));
}
