#pragma once

#include <memory>
#include <string>
#include <vector>

#include "common/Interval.h"
#include "common/Serie.h"
#include "core/Container.h"
#include "vocabulary/EnumElementType.h"

// The base of every network item. An element holds one container of input series, which users
// supply, and one container of results per window of the last run (index 0 for a continuous
// run). Names never contain a backslash or a quote, because files and queries quote them.
class Element {
 public:
  using SeriesContainerPtr = std::shared_ptr<Container<SerieType>>;

  virtual ~Element() = default;

  const std::string& getName() const { return name; }
  // Stores text without any backslash, single quote or double quote.
  void setName(const std::string& text);
  unsigned int getId() const { return id; }
  void setId(unsigned int value) { id = value; }
  unsigned int getDatabaseId() const { return databaseId; }
  void setDatabaseId(unsigned int value) { databaseId = value; }
  const EnumElementType& getElementType() const { return elementType; }
  ElementType getType() const { return elementType.getType(); }
  bool isEnabled() const { return enable; }
  // Disabling drops the results; enabling again does not bring them back.
  void setEnabled(bool enabled);

  const SeriesContainerPtr& getInputSeries() const { return inputSeries; }
  // The input series of a kind; null when the element has no input container. Throws
  // std::invalid_argument "Invalid serie type!" when the container lacks the kind.
  const std::shared_ptr<Serie>& getInputSerie(SerieType type) const;
  // The result series of a kind in a window. Throws std::invalid_argument "Invalid index value!"
  // for a window without results and "Invalid serie type!" for a kind the container lacks.
  const std::shared_ptr<Serie>& getOutputSerie(SerieType type, unsigned int windowIndex) const;
  std::vector<std::shared_ptr<Serie>> getVectorOfInputSeries() const;
  // The result series of a window, in the order of their kinds. Throws std::out_of_range
  // "Invalid window index" for a window without results.
  virtual std::vector<std::shared_ptr<Serie>> getVectorOfSeries(unsigned int windowIndex) const;

  const std::vector<SeriesContainerPtr>& getOutputSeries() const { return outputSeries; }
  void setOutputSeries(std::vector<SeriesContainerPtr> containers);
  void clearOutputSeries() { outputSeries.clear(); }
  bool hasResults() const { return !outputSeries.empty(); }

  // Sets the interval of every input series and of every result series of every window.
  void setIntervalSeries(const Interval& interval);
  // Sets the interval of the result series of one window. Throws std::out_of_range
  // "Element setOutputInterval: invalid windowIndex" for a window without results.
  void setOutputInterval(unsigned int windowIndex, const Interval& interval);

  // A new element of the same type with the same name, ids, state and a copy of the inputs;
  // results and links are not copied.
  virtual std::shared_ptr<Element> copy() const;
  // Takes copies of other's results, window by window. Throws std::invalid_argument
  // "Element::copyResultsSeriesFrom: invalid elementType" when the types differ.
  void copyResultsSeriesFrom(const std::shared_ptr<Element>& other);

 protected:
  Element(const EnumElementType& elementType, SeriesContainerPtr inputSeries);

 private:
  std::string name;
  EnumElementType elementType;
  SeriesContainerPtr inputSeries;
  std::vector<SeriesContainerPtr> outputSeries;
  unsigned int id = 0;
  unsigned int databaseId = 0;
  bool enable = true;
};
