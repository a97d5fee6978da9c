#pragma once

#include <memory>
#include <vector>

#include "common/Date.h"
#include "common/Interval.h"
#include "core/Element.h"
#include "core/Link.h"

// Turns bidirectional links for one date and back. A link that inverts swaps its ends, and the
// two reservoirs move it between their incoming and outgoing lists; restoring puts links and
// lists back as they were stored, order included.
class BidirectionalLinkManager {
 public:
  // Inverts each bidirectional link whose sense for the date is 1. Throws std::invalid_argument
  // "BidirectionalLink::configureInversionOnLink: invalid birectional link" when an end is not a
  // reservoir.
  static void configureInversionOnLinks(const std::vector<std::shared_ptr<Link>>& links,
                                        const Interval& interval, const Date& date,
                                        unsigned int windowIndex);
  // Inverts back every link that is not in its original sense.
  static void restoreInversionOnLinks(const std::vector<std::shared_ptr<Link>>& links);
  // Gives every reservoir among elements its stored link lists back.
  static void restoreInversionOnReservoirs(const std::vector<std::shared_ptr<Element>>& elements);
};
