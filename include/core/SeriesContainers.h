#pragma once

#include <memory>
#include <vector>

#include "core/Container.h"

// The containers of each element kind. They differ only in the kinds of series they are made
// with; the description lists below give those kinds, each with its unit of creation.

template <typename Leaf>
class SeriesContainer : public Container<SerieType> {
 public:
  SeriesContainer() { updateAccordingToVector(Leaf::descriptions()); }
  std::shared_ptr<Container<SerieType>> copy() const override {
    auto result = std::make_shared<Leaf>();
    result->copySeriesFrom(*this);
    return result;
  }
};

#define KOVA_SERIES_CONTAINER(Name)                               \
  class Name : public SeriesContainer<Name> {                     \
   public:                                                        \
    static const std::vector<SerieDescription>& descriptions();   \
  }

KOVA_SERIES_CONTAINER(ReservoirSeriesInput);
KOVA_SERIES_CONTAINER(DemandSeriesInput);
KOVA_SERIES_CONTAINER(LinkSeriesInput);
KOVA_SERIES_CONTAINER(JunctionSeriesInput);
KOVA_SERIES_CONTAINER(BasinSeriesInput);
KOVA_SERIES_CONTAINER(ReservoirSeriesOutput);
KOVA_SERIES_CONTAINER(DemandSeriesOutput);
KOVA_SERIES_CONTAINER(LinkSeriesOutput);
KOVA_SERIES_CONTAINER(JunctionSeriesOutput);
KOVA_SERIES_CONTAINER(BasinSeriesOutput);

#undef KOVA_SERIES_CONTAINER
