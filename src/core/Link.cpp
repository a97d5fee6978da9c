#include "core/Link.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "common/PeriodWalker.h"
#include "core/LinkAddonFactory.h"
#include "core/LinkVectorOfOutputSeriesFactory.h"
#include "core/Node.h"
#include "core/SeriesContainers.h"
#include "vocabulary/Vocabulary.h"

Link::Link(ElementType type)
    : Element(Vocabulary::of(type), std::make_shared<LinkSeriesInput>()),
      linkAddon(LinkAddonFactory::makeLinkAddonNone()) {}

void Link::setIsBidirectional(bool value) {
  if (value) {
    auto up = getUpstream();
    auto down = getDownstream();
    const bool betweenReservoirs = up && down && up->getType() == ElementType::reservoir &&
                                   down->getType() == ElementType::reservoir;
    if (!betweenReservoirs) {
      throw std::invalid_argument("Link::setIsBidirectional: invalid birectional link");
    }
  }
  isBidirectional = value;
}

void Link::invert() {
  std::swap(upstream, downstream);
  currentSense = currentSense == 0 ? 1 : 0;
}

bool Link::linkBurst(unsigned int windowIndex) const {
  const std::shared_ptr<Serie>& inflow = getOutputSerie(SerieType::inflow, windowIndex);
  const std::shared_ptr<Serie> limit = getInputSerie(SerieType::linkLimit);
  if (!limit) return false;
  bool burst = false;
  PeriodWalker::forEach(inflow->getInterval(), [&](const Date& date) {
    const double capacity = limit->getValue(date);
    if (capacity != Serie::kEmptyValue && std::fabs(inflow->getValue(date) - capacity) <= 1e-6) {
      burst = true;
    }
  });
  return burst;
}

std::vector<std::shared_ptr<Serie>> Link::getVectorOfSeries(unsigned int windowIndex) const {
  std::vector<std::shared_ptr<Serie>> series = Element::getVectorOfSeries(windowIndex);
  if (!isBidirectional) {
    series.erase(std::remove_if(series.begin(), series.end(),
                                [](const std::shared_ptr<Serie>& serie) {
                                  return serie->getType() == SerieType::linkSense;
                                }),
                 series.end());
  }
  return LinkVectorOfOutputSeriesFactory::make(series, linkAddon->getType());
}

std::shared_ptr<Element> Link::copy() const {
  std::shared_ptr<Element> element = Element::copy();
  auto link = std::static_pointer_cast<Link>(element);
  link->isUnion = isUnion;
  link->isBidirectional = isBidirectional;
  link->currentSense = currentSense;
  link->senseInfo = senseInfo;
  link->linkAddon = linkAddon->copy();
  return element;
}
