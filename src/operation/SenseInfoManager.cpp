#include "operation/SenseInfoManager.h"

#include <stdexcept>
#include <vector>

#include "core/Node.h"
#include "core/Reservoir.h"
#include "core/ReservoirOperationUtils.h"

namespace {

// The band of volume: scanning down from the top, the first band whose lower boundary the
// volume does not exceed moves it one band lower.
std::size_t bandOf(const std::vector<double>& range, double volume) {
  std::size_t band = range.size() - 1;
  while (band > 0 && range[band - 1] >= volume) --band;
  return band;
}

}  // namespace

int SenseInfoManager::getSenseAccordingToReservoirsVolume(const std::shared_ptr<Link>& link,
                                                          const Interval& interval,
                                                          const Date& date,
                                                          unsigned int windowIndex) {
  if (!link->getIsBidirectional()) {
    throw std::invalid_argument("SenseInfoManager::getSenseAccordingToReservoirsVolume");
  }
  const bool original = link->getCurrentSense() == 0;
  const auto source = std::static_pointer_cast<Reservoir>(original ? link->getUpstream()
                                                                   : link->getDownstream());
  const auto destiny = std::static_pointer_cast<Reservoir>(original ? link->getDownstream()
                                                                    : link->getUpstream());
  const SenseInfo& info = link->getSenseInfo();
  if (info.originalSourceVolumesRange.empty() || info.originalDestinyVolumesRange.empty()) {
    return 0;
  }
  const double sourceVolume =
      ReservoirOperationUtils::currentReservoirVolume(source, interval, date, windowIndex);
  const double destinyVolume =
      ReservoirOperationUtils::currentReservoirVolume(destiny, interval, date, windowIndex);
  return info.senses.at(bandOf(info.originalSourceVolumesRange, sourceVolume))
      .at(bandOf(info.originalDestinyVolumesRange, destinyVolume));
}
