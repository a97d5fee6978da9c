#include "core/SceneryIsolatedData.h"

#include <algorithm>
#include <stdexcept>

#include "common/SerieFactory.h"
#include "core/ElementsFilter.h"
#include "vocabulary/Vocabulary.h"

namespace {

[[noreturn]] void invalidUnion() {
  throw std::invalid_argument("SceneryIsolatedData::getSerieOfUnionLink: invalid unionID");
}

}  // namespace

void SceneryIsolatedData::initialize(const std::vector<std::shared_ptr<Link>>& links,
                                     const Interval& interval) {
  pieces.clear();
  unionFlows.clear();
  for (const auto& link : links) {
    addPairInMapOfUnionLinkIDToSerie(
        link->getId(),
        SerieFactory::make(Vocabulary::of(SerieType::inflow),
                           Vocabulary::of(Vocabulary::unitOf(SerieType::inflow)), interval));
  }
}

void SceneryIsolatedData::addPairInMapOfUnionLinkIDToSerie(unsigned int linkId,
                                                           const std::shared_ptr<Serie>& serie) {
  unionFlows[linkId] = serie;
}

bool SceneryIsolatedData::thereIsASerieToThisUnionLinkID(unsigned int linkId) const {
  return unionFlows.count(linkId) != 0;
}

const std::shared_ptr<Serie>& SceneryIsolatedData::getSerieOfUnionLinkID(
    unsigned int linkId) const {
  auto it = unionFlows.find(linkId);
  if (it == unionFlows.end()) invalidUnion();
  return it->second;
}

double SceneryIsolatedData::getUnionFlow(unsigned int linkId, const Date& date) const {
  const double flow = getSerieOfUnionLinkID(linkId)->getValue(date);
  if (flow == Serie::kEmptyValue) invalidUnion();
  return flow;
}

std::vector<std::shared_ptr<Link>> SceneryIsolatedData::enabledUnionLinks(
    const std::vector<std::shared_ptr<Element>>& elements) {
  std::vector<std::shared_ptr<Link>> links = ElementsFilter::filterByUnionLinks(elements);
  links.erase(std::remove_if(links.begin(), links.end(),
                             [](const std::shared_ptr<Link>& link) { return !link->isEnabled(); }),
              links.end());
  return links;
}

void SceneryIsolatedData::takeUnionFlows(const std::vector<std::shared_ptr<Link>>& links,
                                         const Date& date, unsigned int windowIndex) const {
  for (const auto& link : links) {
    const double flow = link->getOutputSerie(SerieType::inflow, windowIndex)->getValue(date);
    getSerieOfUnionLinkID(link->getId())->setValue(date, flow);
  }
}
