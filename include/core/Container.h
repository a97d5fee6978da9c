#pragma once

#include <map>
#include <memory>
#include <stdexcept>
#include <vector>

#include "common/Serie.h"
#include "common/SerieFactory.h"
#include "core/SerieDescription.h"
#include "vocabulary/EnumFactories.h"

// The series of one element for one purpose (its inputs, or its results in one window), keyed by
// kind. Iteration follows the order of the kind's number. Runs ask for a series by kind many
// times a period, so beside the map a table indexed by the kind's number finds it in one step.
template <typename T>
class Container {
 public:
  virtual ~Container() = default;
  Container(const Container& other) : series(other.series) { index(); }
  Container& operator=(const Container& other) {
    series = other.series;
    index();
    return *this;
  }

  // Creates an empty series for each description the container does not hold yet.
  void updateAccordingToVector(const std::vector<SerieDescription>& descriptions) {
    for (const SerieDescription& description : descriptions) {
      if (series.count(description.type) != 0) continue;
      series.emplace(description.type,
                     SerieFactory::make(EnumSerieTypeFactory::makeSerieType(description.type),
                                        EnumUnitFactoryByType::makeUnit(description.unit),
                                        Interval()));
    }
    index();
  }

  // Throws std::invalid_argument "Invalid serie type!" for a kind the container lacks.
  const std::shared_ptr<Serie>& getSerie(const T& type) const {
    const auto number = static_cast<std::size_t>(type);
    if (number >= byNumber.size() || !byNumber[number]) {
      throw std::invalid_argument("Invalid serie type!");
    }
    return *byNumber[number];
  }
  bool hasSerie(const T& type) const { return series.count(type) != 0; }

  std::vector<std::shared_ptr<Serie>> makeVectorOfSeries() const {
    std::vector<std::shared_ptr<Serie>> result;
    result.reserve(series.size());
    for (const auto& entry : series) result.push_back(entry.second);
    return result;
  }

  const std::map<T, std::shared_ptr<Serie>>& getSeries() const { return series; }

  // Copies each series of other into this container, adding kinds it lacks.
  void copyFrom(const std::shared_ptr<Container<T>>& other) { copySeriesFrom(*other); }

  // A deep copy of the same class.
  virtual std::shared_ptr<Container<T>> copy() const = 0;

 protected:
  Container() = default;
  void copySeriesFrom(const Container<T>& other) {
    for (const auto& entry : other.series) series[entry.first] = entry.second->copy();
    index();
  }

 private:
  // Points each kind's number at its entry of the map, whose nodes never move.
  void index() {
    byNumber.clear();
    for (const auto& entry : series) {
      const auto number = static_cast<std::size_t>(entry.first);
      if (number >= byNumber.size()) byNumber.resize(number + 1, nullptr);
      byNumber[number] = &entry.second;
    }
  }

  std::map<T, std::shared_ptr<Serie>> series;
  std::vector<const std::shared_ptr<Serie>*> byNumber;
};
