#pragma once

#include <memory>

#include "common/Date.h"
#include "core/Link.h"

// Writes what a link's add-on makes of a period: a pumping line's cost ("Custo de bombeamento"),
// nothing for the other add-ons.
class LinkAddonResultsWriter {
 public:
  // Throws std::invalid_argument "LinkAddonResultsWriter::write invalid addonType" for an
  // add-on type outside the vocabulary.
  static void write(const std::shared_ptr<Link>& link, const Date& date, unsigned int windowIndex);
  // The cost of the link's inflow at date by the month's cost table, R$.
  static void writePumping(const std::shared_ptr<Link>& link, const Date& date,
                           unsigned int windowIndex);
};
