#pragma once

#include "common/Calendar.h"
#include "common/Interval.h"

// Walks the dates of an interval the way every run and every series fill does: from the begin,
// one step of the periodicity at a time, the step computed from the current date. A monthly walk
// that begins on the first stays on the first; one that begins on the 31st stays on month ends.
class PeriodWalker {
 public:
  template <typename Visit>
  static void forEach(const Interval& interval, Visit&& visit) {
    Date date = interval.getBegin();
    while (date <= interval.getEnd()) {
      visit(date);
      date += Calendar::incInterval(date, interval);
    }
  }
};
