#pragma once

#include <memory>
#include <vector>

#include "common/Serie.h"
#include "vocabulary/EnumTypes.h"

// Chooses which result series of a link are shown, by its add-on: only pumping produces
// "Custo de bombeamento". Throws std::invalid_argument
// "LinkVectorOfOutputSeriesFactory::make:: invalid linkAddon type" for an unknown add-on.
class LinkVectorOfOutputSeriesFactory {
 public:
  static std::vector<std::shared_ptr<Serie>> make(const std::vector<std::shared_ptr<Serie>>& series,
                                                  LinkAddonType addonType);
};
