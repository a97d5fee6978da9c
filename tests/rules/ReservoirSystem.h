#pragma once

#include <memory>
#include <vector>

#include "core/Reservoir.h"
#include "support/NetworkBuilder.h"

// Reservoirs of a monthly rule scenario over January to April 2001 (ids 0, 1, ... in the order
// given) whose volume at the start of each month is set by hand, as a run would leave it.
struct ReservoirSystem {
  // One reservoir per maximum volume (hm³), with empty results ready to be written.
  explicit ReservoirSystem(const std::vector<double>& maxVols) {
    for (double maxVol : maxVols) {
      auto reservoir = std::static_pointer_cast<Reservoir>(net.node(ElementType::reservoir));
      reservoir->getReservoirInfo().maxVol = maxVol;
      reservoirs.push_back(reservoir);
    }
    net.scenario->createResults();
  }

  const Interval& interval() const { return net.scenario->getInterval(); }

  // The volume (hm³) with which the month of date begins: the initial volume in January, the
  // final volume of the month before otherwise.
  void startVolume(std::size_t index, const Date& date, double volume) {
    const auto& reservoir = reservoirs[index];
    if (date == interval().getBegin()) {
      reservoir->getReservoirInfo().initVol = volume;
    } else {
      reservoir->getOutputSerie(SerieType::finalVolume, 0)
          ->setValue(Date(2001, date.getMonth() - 1, 1), volume);
    }
  }

  NetworkBuilder net{
      Interval(Date(2001, 1, 1), Date(2001, 4, 1), Vocabulary::of(Periodicity::monthly))};
  std::vector<std::shared_ptr<Reservoir>> reservoirs;
};
