#pragma once

#include <memory>

#include "common/Serie.h"

// Makes empty series.
class SerieFactory {
 public:
  static std::shared_ptr<Serie> make(const Enum<SerieType>& type, const Enum<Unit>& unit,
                                     const Interval& interval);
};
