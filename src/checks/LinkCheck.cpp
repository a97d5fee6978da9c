#include "checks/LinkCheck.h"

#include "checks/AllocationMatrixCheck.h"
#include "checks/SerieCheck.h"
#include "common/NumericalUtils.h"
#include "common/PeriodWalker.h"
#include "core/LinkRuleSettings.h"
#include "core/Node.h"
#include "core/RuleSettings.h"
#include "core/Scenario.h"

LinkCheck::LinkCheck(std::shared_ptr<Element> element, std::weak_ptr<Scenario> scenario)
    : ElementCheck(std::move(element), {SerieType::transitLossPercentage, SerieType::linkLimit},
                   std::move(scenario)) {}

void LinkCheck::runChecks() {
  ElementCheck::runChecks();
  static const std::vector<void (LinkCheck::*)()> table = {
      &LinkCheck::checkUpstream,
      &LinkCheck::checkDownstream,
      &LinkCheck::checkNaturalBidirectionalLink,
      &LinkCheck::checkLinkLossSerie,
  };
  runTable(this, table);
}

void LinkCheck::checkUpstream() {
  if (!link().getUpstream()) report("Trecho sem elemento a montante:");
}

void LinkCheck::checkDownstream() {
  if (!link().getDownstream()) report("Trecho sem elemento a jusante:");
}

void LinkCheck::checkNaturalBidirectionalLink() {
  if (link().getType() == ElementType::naturalLink && link().getIsBidirectional()) {
    report("Trecho natural não pode ser bidirecional:");
  }
}

void LinkCheck::checkLinkLossSerie() {
  const auto loss = link().getInputSerie(SerieType::transitLossPercentage);
  const SerieCheck describer(loss, getScenario()->getInterval(), link().getName());
  PeriodWalker::forEach(getScenario()->getInterval(), [&](const Date& date) {
    if (NumericalUtils::subtractDoubles(loss->getValue(date), 100.0, 1e-6) > 0.0) {
      reportAs(describer.getInfo(date), "Valor além de 100% em:");
    }
  });
}

void RuleLinkCheck::runChecks() {
  LinkCheck::runChecks();
  if (!link().getIsBidirectional() || !link().getDownstream()) return;
  static const std::vector<void (RuleLinkCheck::*)()> table = {
      &RuleLinkCheck::checkBidirectionalVector,
      &RuleLinkCheck::checkSumOfAllocationMatrix,
  };
  runTable(this, table);
}

namespace {

const std::vector<double>& ownRow(const Scenario& scenario, const Element& link) {
  return std::static_pointer_cast<LinkRuleSettings>(
             scenario.getSettingsManager().getSettings(link.getId()))
      ->getValues();
}

const RuleSettings::AllocationMatrix& matrixOf(const Scenario& scenario, const Element& node) {
  return std::static_pointer_cast<RuleSettings>(
             scenario.getSettingsManager().getSettings(node.getId()))
      ->getAllocation();
}

}  // namespace

void RuleLinkCheck::checkBidirectionalVector() {
  const auto downstream = link().getDownstream();
  const auto& matrix = matrixOf(*getScenario(), *downstream);
  auto own = matrix.find(downstream->getId());
  const std::size_t lines = own == matrix.end() ? 0 : own->second.size();
  if (ownRow(*getScenario(), link()).size() != lines) {
    report(
        "Quantidade de linhas do vetor de alocação desse trecho é diferente da quantidade de "
        "linhas da matriz de alocação do elemento a jusante:");
  }
}

void RuleLinkCheck::checkSumOfAllocationMatrix() {
  const auto downstream = link().getDownstream();
  const auto& matrix = matrixOf(*getScenario(), *downstream);
  auto own = matrix.find(downstream->getId());
  if (own == matrix.end()) return;
  const auto& values = ownRow(*getScenario(), link());
  for (std::size_t i = 0; i < own->second.size() && i < values.size(); ++i) {
    const double sum = AllocationMatrixCheck::lineSum(matrix, downstream->getId(), i) + values[i];
    if (NumericalUtils::subtractDoubles(sum, own->second[i], 1e-6) > 0.0) {
      report("O somatório da linha i excede ao da liberação, considerando o trecho birecional:(i = " +
             std::to_string(i) + ")");
    }
  }
}
