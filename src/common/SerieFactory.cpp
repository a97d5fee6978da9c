#include "common/SerieFactory.h"

std::shared_ptr<Serie> SerieFactory::make(const Enum<SerieType>& type, const Enum<Unit>& unit,
                                          const Interval& interval) {
  return std::make_shared<Serie>(interval, type, unit);
}
