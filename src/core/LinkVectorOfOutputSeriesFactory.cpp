#include "core/LinkVectorOfOutputSeriesFactory.h"

#include <algorithm>
#include <functional>
#include <map>
#include <stdexcept>

namespace {

using SerieList = std::vector<std::shared_ptr<Serie>>;

SerieList withoutPumpingCost(const SerieList& series) {
  SerieList result;
  std::copy_if(series.begin(), series.end(), std::back_inserter(result),
               [](const std::shared_ptr<Serie>& serie) {
                 return serie->getType() != SerieType::pumpingCost;
               });
  return result;
}

SerieList everything(const SerieList& series) { return series; }

}  // namespace

SerieList LinkVectorOfOutputSeriesFactory::make(const SerieList& series, LinkAddonType addonType) {
  static const std::map<LinkAddonType, std::function<SerieList(const SerieList&)>> makers = {
      {LinkAddonType::none, withoutPumpingCost},
      {LinkAddonType::propagation, withoutPumpingCost},
      {LinkAddonType::pumping, everything},
  };
  auto it = makers.find(addonType);
  if (it == makers.end()) {
    throw std::invalid_argument("LinkVectorOfOutputSeriesFactory::make:: invalid linkAddon type");
  }
  return it->second(series);
}
