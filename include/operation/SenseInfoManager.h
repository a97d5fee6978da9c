#pragma once

#include <memory>

#include "common/Date.h"
#include "common/Interval.h"
#include "core/Link.h"

// Which way a bidirectional link flows on a date, by the storage of the reservoirs at its two
// original ends.
class SenseInfoManager {
 public:
  // 0 to keep the original sense, 1 to invert it: the entry of the link's sense table at the bands
  // of the two volumes (a volume on a boundary falls into the lower band; above the top boundary,
  // the last band). 0 without bands. Throws std::invalid_argument
  // "SenseInfoManager::getSenseAccordingToReservoirsVolume" for a link that is not bidirectional.
  static int getSenseAccordingToReservoirsVolume(const std::shared_ptr<Link>& link,
                                                 const Interval& interval, const Date& date,
                                                 unsigned int windowIndex);
};
