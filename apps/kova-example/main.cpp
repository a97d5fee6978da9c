// Builds a small river network in code, runs it month by month for a year through the scenario
// manager, and prints the flows of its elements as a table.
#include <cstdio>
#include <memory>
#include <string>

#include "common/PeriodWalker.h"
#include "core/ElementFactory.h"
#include "core/LinkFactory.h"
#include "core/RuleScenario.h"
#include "core/RuleSettings.h"
#include "core/ScenarioManager.h"
#include "core/Vocabulary.h"
#include "operation/ExecutionContinuous.h"

namespace {

std::shared_ptr<Node> addNode(Scenario& scenario, ElementType type, const std::string& name) {
  auto node = std::static_pointer_cast<Node>(ElementFactory::make(type));
  scenario.addElement(node, false);
  node->setName(name);
  return node;
}

std::shared_ptr<Link> addLink(Scenario& scenario, const std::shared_ptr<Node>& up,
                              const std::shared_ptr<Node>& down, double lossPercentage,
                              double limit) {
  auto link = LinkFactory<NaturalLink>::make(up, down, up->getName() + " -> " + down->getName(),
                                             Vocabulary::of(LinkAddonType::none));
  scenario.addElement(link, false);
  link->getInputSerie(SerieType::transitLossPercentage)->fill(lossPercentage);
  link->getInputSerie(SerieType::linkLimit)->fill(limit);
  return link;
}

}  // namespace

int main() {
  const Interval year(Date(2019, 1, 1), Date(2019, 12, 1), Vocabulary::of(Periodicity::monthly));
  auto scenario = std::make_shared<RuleScenario>(std::make_shared<ExecutionContinuous>(), 0, year,
                                                 "Exemplo");
  auto upper = addNode(*scenario, ElementType::junction, "Alto");
  auto middle = addNode(*scenario, ElementType::junction, "Medio");
  auto canal = addNode(*scenario, ElementType::junction, "Canal");
  auto mouth = addNode(*scenario, ElementType::junction, "Foz");
  auto reach = addLink(*scenario, upper, middle, 5.0, 1000.0);
  auto toCanal = addLink(*scenario, middle, canal, 0.0, 30.0);
  auto toMouth = addLink(*scenario, middle, mouth, 2.0, 1000.0);

  // The middle junction sends 30 % of what it receives to the canal and the rest to the mouth.
  auto allocation = std::static_pointer_cast<RuleSettings>(
      scenario->getSettingsManager().getSettings(middle->getId()));
  allocation->setAllocationByMatrixOfDouble(
      {{double(middle->getId()), double(toCanal->getId()), double(toMouth->getId())},
       {0, 0, 0},
       {100, 30, 70}});

  ScenarioManager& manager = ScenarioManager::getInstance();
  manager.addScenery(0, scenario);
  manager.executeScenery(0, nullptr, nullptr);
  std::printf("%s\n\n", scenario->getSceneryStatus().getName().c_str());

  std::printf("%-8s", "mês");
  for (const auto& link : {reach, toCanal, toMouth}) std::printf(" %20s", link->getName().c_str());
  std::printf("\n");
  PeriodWalker::forEach(year, [&](const Date& date) {
    std::printf("%-8s", date.toString("%m/%Y").c_str());
    for (const auto& link : {reach, toCanal, toMouth}) {
      std::printf(" %20.3f", link->getOutputSerie(SerieType::outflow, 0)->getValue(date));
    }
    std::printf("\n");
  });
  return 0;
}
