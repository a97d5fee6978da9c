#include "core/Element.h"

#include <algorithm>
#include <stdexcept>

#include "core/ElementFactory.h"

Element::Element(const EnumElementType& elementType, SeriesContainerPtr inputSeries)
    : elementType(elementType), inputSeries(std::move(inputSeries)) {}

void Element::setName(const std::string& text) {
  name.clear();
  std::copy_if(text.begin(), text.end(), std::back_inserter(name),
               [](char c) { return c != '\\' && c != '\'' && c != '"'; });
}

void Element::setEnabled(bool enabled) {
  enable = enabled;
  if (!enabled) outputSeries.clear();
}

const std::shared_ptr<Serie>& Element::getInputSerie(SerieType type) const {
  static const std::shared_ptr<Serie> none;
  if (!inputSeries) return none;
  return inputSeries->getSerie(type);
}

const std::shared_ptr<Serie>& Element::getOutputSerie(SerieType type,
                                                       unsigned int windowIndex) const {
  if (windowIndex >= outputSeries.size()) throw std::invalid_argument("Invalid index value!");
  return outputSeries[windowIndex]->getSerie(type);
}

std::vector<std::shared_ptr<Serie>> Element::getVectorOfInputSeries() const {
  if (!inputSeries) return {};
  return inputSeries->makeVectorOfSeries();
}

std::vector<std::shared_ptr<Serie>> Element::getVectorOfSeries(unsigned int windowIndex) const {
  if (windowIndex >= outputSeries.size()) throw std::out_of_range("Invalid window index");
  return outputSeries[windowIndex]->makeVectorOfSeries();
}

void Element::setOutputSeries(std::vector<SeriesContainerPtr> containers) {
  outputSeries = std::move(containers);
}

void Element::setIntervalSeries(const Interval& interval) {
  for (const auto& serie : getVectorOfInputSeries()) serie->setInterval(interval);
  for (const auto& container : outputSeries) {
    for (const auto& serie : container->makeVectorOfSeries()) serie->setInterval(interval);
  }
}

void Element::setOutputInterval(unsigned int windowIndex, const Interval& interval) {
  if (windowIndex >= outputSeries.size()) {
    throw std::out_of_range("Element setOutputInterval: invalid windowIndex");
  }
  for (const auto& serie : outputSeries[windowIndex]->makeVectorOfSeries()) {
    serie->setInterval(interval);
  }
}

std::shared_ptr<Element> Element::copy() const {
  std::shared_ptr<Element> element = ElementFactory::make(elementType.getType());
  element->name = name;
  element->id = id;
  element->databaseId = databaseId;
  element->enable = enable;
  if (inputSeries) element->inputSeries = inputSeries->copy();
  return element;
}

void Element::copyResultsSeriesFrom(const std::shared_ptr<Element>& other) {
  if (other->getType() != getType()) {
    throw std::invalid_argument("Element::copyResultsSeriesFrom: invalid elementType");
  }
  outputSeries.clear();
  for (const auto& container : other->outputSeries) outputSeries.push_back(container->copy());
}
