#include "checks/ElementCheck.h"

#include "checks/SerieCheck.h"
#include "core/Link.h"
#include "core/NetworkUtils.h"
#include "core/Scenario.h"

ElementCheck::ElementCheck(std::shared_ptr<Element> element, std::set<SerieType> serieTypes,
                           std::weak_ptr<Scenario> scenario)
    : element(std::move(element)), serieTypes(std::move(serieTypes)), scenario(std::move(scenario)) {}

void ElementCheck::check() {
  clearErrors();
  for (SerieType type : serieTypes) {
    SerieCheck serieCheck(element->getInputSerie(type), getScenario()->getInterval(),
                          element->getName());
    serieCheck.check();
    appendFindings(serieCheck);
  }
  runChecks();
}

void ElementCheck::appendFindings(const CheckCompleteness& other) {
  for (const auto& error : other.getErrors()) addError(error.elementName, error.message);
}

void ElementCheck::checkStateSerie(const std::shared_ptr<Serie>& serie, unsigned int state,
                                   unsigned int states) {
  HydrologicalStateSerieCheck serieCheck(serie, getScenario()->getInterval(), element->getName(),
                                         state, states);
  serieCheck.check();
  appendFindings(serieCheck);
}

bool NodeCheck::reachesDrain(const std::shared_ptr<Link>& link) {
  const std::shared_ptr<Node> target = link->getDownstream();
  if (!target) return false;
  if (target->getType() == ElementType::drain) return true;
  return !NetworkUtils::getAllDownstreamNodes(target, {ElementType::drain}, true).empty();
}
