#include "checks/PriorityDemandCheck.h"

#include <algorithm>

#include "core/ElementSets.h"
#include "core/HydrologicalStateConfiguration.h"
#include "core/NetworkUtils.h"
#include "core/Scenario.h"

namespace {

constexpr double kMaxDemandPriority = 99.0;
constexpr unsigned int kMaxStatePriority = 99;

const std::string kInvalidPriority = "Valor de prioridade inválido em:";

// Whether some hydrological state gives the downstream element a smaller priority number.
bool anyStateComesFirst(const PrioritySettings& downstream, const PrioritySettings& own) {
  const auto& theirs = downstream.getPrioritySeries();
  const auto& ours = own.getPrioritySeries();
  const std::size_t states = std::min(theirs.size(), ours.size());
  for (std::size_t state = 0; state < states; ++state) {
    if (theirs[state].first < ours[state].first) return true;
  }
  return false;
}

}  // namespace

PriorityDemandCheck::PriorityDemandCheck(std::shared_ptr<Element> element,
                                         std::weak_ptr<Scenario> scenario)
    : DemandCheck(std::move(element), std::move(scenario)) {}

double PriorityDemandCheck::maxPriority() const { return kMaxDemandPriority; }

double PriorityDrainDemandCheck::maxPriority() const {
  return PriorityDemandCheck::maxPriority() + 1.0;
}

void PriorityDemandCheck::runChecks() {
  DemandCheck::runChecks();
  static const std::vector<void (PriorityDemandCheck::*)()> table = {
      &PriorityDemandCheck::checkPriority,
      &PriorityDemandCheck::checkHydrologicalState,
      &PriorityDemandCheck::checkDownstreamDemandPriority,
  };
  runTable(this, table);
}

void PriorityDemandCheck::checkPriority() {
  const unsigned int priority = settingsOf(getElement())->getPriority();
  if (priority == 0 || static_cast<double>(priority) > maxPriority()) report(kInvalidPriority);
}

void PriorityDemandCheck::checkHydrologicalState() {
  if (stateType() != HydrologicalStateType::standard) return;
  const auto& states = settingsOf(getElement())->getPrioritySeries();
  const auto count = static_cast<unsigned int>(states.size());
  for (unsigned int state = 0; state < count; ++state) {
    if (states[state].first == 0 || states[state].first > kMaxStatePriority) {
      report(kInvalidPriority);
    }
    checkStateSerie(states[state].second, state, count);
  }
}

void PriorityDemandCheck::checkDownstreamDemandPriority() {
  const auto own = settingsOf(getElement());
  const auto node = std::static_pointer_cast<Node>(getElement());
  for (const auto& demand :
       NetworkUtils::getAllDownstreamNodes(node, ElementSets::demands(), true)) {
    if (settingsOf(demand)->getPriority() < own->getPriority()) {
      report("Demanda com prioridade inferior ao nó a jusante do tipo demanda:" + node->getName() +
             "," + demand->getName());
    }
  }
  const auto reservoirs = NetworkUtils::getAllDownstreamNodes(node, ElementSets::reservoir(), true);
  for (const auto& reservoir : reservoirs) {
    if (settingsOf(reservoir)->getPriority() < own->getPriority()) {
      report("Demanda com prioridade inferior ao nó a jusante do tipo reservatório:");
    }
  }
  if (stateType() != HydrologicalStateType::standard) return;
  for (const auto& reservoir : reservoirs) {
    if (anyStateComesFirst(*settingsOf(reservoir), *own)) {
      report(
          "Demanda com prioridade inferior ao nó a jusante do tipo reservatório estado "
          "hidrológico:");
    }
  }
}

std::shared_ptr<PrioritySettings> PriorityDemandCheck::settingsOf(
    const std::shared_ptr<Element>& element) const {
  return Scenario::getSettings<PrioritySettings>(element, getScenario()->getSettingsManager());
}

HydrologicalStateType PriorityDemandCheck::stateType() const {
  return getScenario()
      ->getHydrologicalStateConfiguration()
      ->getCurrentHydrologicalStateType()
      .getType();
}
