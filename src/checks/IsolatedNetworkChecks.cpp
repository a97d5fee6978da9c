#include "checks/IsolatedNetworkChecks.h"

#include <algorithm>
#include <map>

#include "core/ElementSets.h"
#include "core/ElementsFilter.h"
#include "core/ExecutionMethod.h"
#include "core/IsolatedNetworkStreamsManager.h"
#include "core/IsolatedNetworkUtils.h"
#include "core/Node.h"
#include "core/ReleaseRule.h"
#include "core/ReservoirRuleSettings.h"

namespace {

std::string quoted(const std::shared_ptr<Element>& element) {
  return "\"" + element->getName() + "\"";
}

void append(IsolatedNetworkChecks::Findings& to, const IsolatedNetworkChecks::Findings& more) {
  to.insert(to.end(), more.begin(), more.end());
}

std::map<unsigned int, std::size_t> networkOfEachNode(const Scenario& scenario) {
  std::map<unsigned int, std::size_t> networkOf;
  const auto split = IsolatedNetworkStreamsManager::splitNetwork(scenario.getElements());
  for (std::size_t network = 0; network < split.size(); ++network) {
    for (unsigned int id : split[network]) networkOf[id] = network;
  }
  return networkOf;
}

}  // namespace

IsolatedNetworkChecks::Findings IsolatedNetworkChecks::findArrangementErrors(
    const Scenario& scenario) {
  Findings findings = checkExecutionMethod(scenario);
  for (const auto& reservoir :
       IsolatedNetworkUtils::getStackOfReservoirsWithIsolatedFlagTrue(scenario)) {
    append(findings, checkInsertionOfNewIsolatedReservoir(reservoir));
  }
  append(findings, checkRuleDependenciesInsideIsolatedNetworks(scenario));
  return findings;
}

bool IsolatedNetworkChecks::checkNetworkArrangementAndIsolate(Scenario& scenario,
                                                              Findings& failures) {
  bool fine = true;
  for (const auto& reservoir :
       IsolatedNetworkUtils::getStackOfReservoirsWithIsolatedFlagTrue(scenario)) {
    const Findings findings = checkInsertionOfNewIsolatedReservoir(reservoir);
    if (findings.empty()) continue;
    append(failures, findings);
    IsolatedNetworkUtils::setReservoirIsolated(scenario, reservoir, false);
    fine = false;
  }
  return fine;
}

IsolatedNetworkChecks::Findings IsolatedNetworkChecks::checkInsertionOfNewIsolatedReservoir(
    const std::shared_ptr<Element>& node) {
  if (!node->isEnabled() || ElementSets::reservoir().count(node->getType()) == 0) {
    return {"O elemento " + quoted(node) +
            " não é um reservatório habilitado e não pode ser isolado."};
  }
  if (!checkDownstreamPathExistence(node)) {
    return {"O reservatório isolado " + quoted(node) +
            " não tem trecho a jusante que una sua rede ao restante da rede."};
  }
  return {};
}

bool IsolatedNetworkChecks::checkExistenceOfIsolatedReservoirInScenery(const Scenario& scenario) {
  return !IsolatedNetworkUtils::getStackOfReservoirsWithIsolatedFlagTrue(scenario).empty();
}

bool IsolatedNetworkChecks::checkDownstreamPathExistence(
    const std::shared_ptr<Element>& reservoir) {
  const auto& links = std::static_pointer_cast<Node>(reservoir)->getDownstreamLinks();
  return std::any_of(links.begin(), links.end(), [](const std::shared_ptr<Link>& link) {
    return IsolatedNetworkStreamsManager::canAddLink(link);
  });
}

IsolatedNetworkChecks::Findings IsolatedNetworkChecks::checkRuleDependenciesInsideIsolatedNetworks(
    const Scenario& scenario) {
  Findings findings;
  const auto networkOf = networkOfEachNode(scenario);
  for (const auto& reservoir :
       ElementsFilter::filterByType(scenario.getElements(), ElementSets::reservoir())) {
    const auto own = networkOf.find(reservoir->getId());
    if (own == networkOf.end()) continue;
    const auto settings = std::dynamic_pointer_cast<ReservoirRuleSettings>(
        scenario.getSettingsManager().getSettings(reservoir->getId()));
    if (!settings || !settings->getRule()) continue;
    for (const auto& dependency : settings->getRule()->getDependencies()) {
      const auto other = networkOf.find(dependency->getId());
      if (other != networkOf.end() && other->second == own->second) continue;
      findings.push_back("A regra do reservatório " + quoted(reservoir) +
                         " depende do reservatório " + quoted(dependency) +
                         ", que está em outra rede isolada.");
    }
  }
  return findings;
}

IsolatedNetworkChecks::Findings IsolatedNetworkChecks::checkExecutionMethod(
    const Scenario& scenario) {
  if (scenario.getExecutionMethod()->getExecutionType().getType() == ExecutionType::continuous) {
    return {};
  }
  return {"Não é possível executar no modo rede isolada com o método de execução em janelas!"};
}
