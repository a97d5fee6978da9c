#include "checks/LinkCheck.h"

#include "checks/AllocationMatrixCheck.h"
#include "checks/SerieCheck.h"
#include "common/NumericalUtils.h"
#include "common/PeriodWalker.h"
#include "core/LinkAddonPumping.h"
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
      &LinkCheck::checkNumberOfLinesLinkAddonPumping,
      &LinkCheck::checkLinkAddonPumpingFirstLine,
      &LinkCheck::checkLinkAddonPumpingLines,
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

namespace {

// The cost table of a pumping line, or null for another add-on.
const std::vector<std::shared_ptr<PumpingFlowCost>>* pumpingTable(const Link& link) {
  if (link.getLinkAddon()->getType() != LinkAddonType::pumping) return nullptr;
  return &static_cast<const LinkAddonPumping&>(*link.getLinkAddon()).getFlowCostVector();
}

}  // namespace

void LinkCheck::checkNumberOfLinesLinkAddonPumping() {
  const auto* table = pumpingTable(link());
  if (table && table->size() < 3) {
    report("Matriz do trecho de bombeamento possui menos que 3 linhas em:");
  }
}

void LinkCheck::checkLinkAddonPumpingFirstLine() {
  const auto* table = pumpingTable(link());
  if (!table || table->empty()) return;
  const PumpingFlowCost& first = *table->front();
  bool zeros = NumericalUtils::compareDoubles(first.flow, 0.0, 1e-6);
  for (double cost : first.costs) zeros = zeros && NumericalUtils::compareDoubles(cost, 0.0, 1e-6);
  if (!zeros) report("A primeira linha da matriz de bombeamento deve ser composta de zeros:");
}

// Each column of the cost table must rise strictly from row to row.
void LinkCheck::checkLinkAddonPumpingLines() {
  const auto* table = pumpingTable(link());
  if (!table) return;
  for (std::size_t i = 0; i + 1 < table->size(); ++i) {
    const PumpingFlowCost& row = *(*table)[i];
    const PumpingFlowCost& next = *(*table)[i + 1];
    const std::string rows = " (i = " + std::to_string(i) + ", i + 1 = " + std::to_string(i + 1);
    if (next.flow <= row.flow) {
      report(
          "Matriz de bombeamento inválida. O valor da vazão da linha i é menor ou igual a vazão "
          "da linha i + 1:" +
          rows + ")");
    }
    for (std::size_t m = 0; m < row.costs.size(); ++m) {
      if (next.costs[m] <= row.costs[m]) {
        report(
            "Matriz de bombeamento inválida. O valor do custo da linha i + 1 no mês m é menor ou "
            "igual ao o custo na linha i:" +
            rows + ", m = " + std::to_string(m + 1) + ")");
      }
    }
  }
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
