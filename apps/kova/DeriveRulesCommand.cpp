#include "DeriveRulesCommand.h"

#include <map>

#include "ExitStatus.h"
#include "HostText.h"
#include "Interrupt.h"
#include "OpenProject.h"
#include "OptimisationRun.h"
#include "TextColumns.h"
#include "UsageError.h"
#include "core/ElementSets.h"
#include "core/ElementsFilter.h"
#include "core/ReservoirRuleSettings.h"
#include "machinelearning/MachineLearningDatasetIndexesToTest.h"
#include "machinelearning/RegressionRandomForestAlgorithm.h"
#include "managers/AutomatedScenarioBuilder.h"
#include "managers/MachineLearningRegressionColVolumesReleaseRuleNumberOfEntriesOfAverageOptimizer.h"
#include "rules/MachineLearningRegressionColVolumesReleaseRule.h"
#include "scenario/ConfigureRuleElementFromPriorityAddonFactory.h"
#include "scenario/PriorityScenario.h"
#include "scenario/RuleScenario.h"

namespace {

// The share of the entries each fold trains on: five folds.
constexpr double kTrainPercent = 80.0;

ConfigureRuleElementType kindNamed(const std::string& name) {
  using C = ConfigureRuleElementType;
  static const std::map<std::string, ConfigureRuleElementType> kinds{{"series", C::defaultSerie},
                                                                     {"knn", C::knn},
                                                                     {"tree", C::regressionTree},
                                                                     {"forest", C::randomForest}};
  const auto found = kinds.find(name);
  if (found == kinds.end()) {
    throw UsageError(tr("option --kind: \"{1}\" is not one of knn, tree, forest, series", {name}));
  }
  return found->second;
}

std::shared_ptr<PriorityScenario> priorityOf(const std::shared_ptr<Scenario>& scenario) {
  auto priority = std::dynamic_pointer_cast<PriorityScenario>(scenario);
  if (!priority) {
    throw UsageError(
        tr("scenario \"{1}\" is a \"{2}\" scenario, not one by priorities "
           "(\"Otimizador por prioridades\")",
           {scenario->getName(), scenario->getScenarioType().getName()}));
  }
  return priority;
}

// The settings of kind, every reservoir's model reading the volumes of all the reservoirs.
std::shared_ptr<ConfigureRuleElementFromPriorityAddon> addonOf(const Scenario& scenario,
                                                               ConfigureRuleElementType kind,
                                                               unsigned long entries) {
  auto addon = ConfigureRuleElementFromPriorityAddonFactory::make(kind);
  std::vector<unsigned int> all;
  for (const auto& reservoir :
       ElementsFilter::filterByType(scenario.getElements(), ElementSets::reservoir())) {
    all.push_back(reservoir->getId());
  }
  ConfigureRuleElementFromPriorityAddon::ReservoirSystems systems;
  for (const unsigned int id : all) systems[id] = all;
  addon->setReservoirSystems(systems);
  addon->setNumberOfEntriesForAverage(static_cast<unsigned int>(entries));
  return addon;
}

// The mean squared errors of each reservoir's model over five folds of its entries, on the
// entries each fold leaves out and on those it trains on.
void printErrors(const RuleScenario& scenario, Console& console) {
  std::vector<std::vector<std::string>> lines{
      {tr("reservoir"), tr("entries"), tr("test"), tr("train")}};
  for (const auto& reservoir :
       ElementsFilter::filterByType(scenario.getElements(), ElementSets::reservoir())) {
    const auto rule = std::dynamic_pointer_cast<MachineLearningRegressionColVolumesReleaseRule>(
        Scenario::getSettings<ReservoirRuleSettings>(reservoir, scenario.getSettingsManager())
            ->getRule());
    if (!rule || rule->getDataset().size() < 5) continue;
    const auto model = rule->getAlgorithm()->clone();
    const auto folds = MachineLearningDatasetIndexesToTest::makeKFoldCrossValidationStr(
        static_cast<uint32_t>(model->getDataset().size()), kTrainPercent, false);
    const auto [test, train] = model->getError(folds, model->getNumberOfEntriesForAverage());
    lines.push_back({reservoir->getName(), std::to_string(model->getNumberOfEntriesForAverage()),
                     TextColumns::number(test, 6), TextColumns::number(train, 6)});
  }
  console.out << tr("mean squared error of each model over five folds of its entries ((m³/s)²):")
              << '\n';
  TextColumns::printAligned(lines, console.out);
}

}  // namespace

Command DeriveRulesCommand::describe() {
  return {"derive-rules",
          "kova derive-rules P.sjson --scenario NAME --kind knn|tree|forest|series [--entries K | "
          "--best-entries MAX] [--seed N]",
          tr("make the rule scenario that follows the stored run of a scenario by priorities"),
          HostText::help("derive-rules"),
          {{"scenario", "kind", "entries", "best-entries", "seed"}, {}, {}, 1, 1},
          run};
}

int DeriveRulesCommand::run(const CommandLine& line, Console& console) {
  Interrupt::Guard interruptible;
  OpenProject project(line.positional(0), nullptr, OpenProject::Access::readWrite);
  const auto scenario = project.scenario(line.required("scenario"));
  const auto priority = priorityOf(scenario);
  const ConfigureRuleElementType kind = kindNamed(line.required("kind"));
  const std::string name =
      scenario->getName() + "-rule-" + MachineLearningVocabulary::of(kind).getName();
  project.requireFreeName(name);
  if (line.has("entries") && line.has("best-entries")) {
    throw UsageError(tr("options --entries and --best-entries exclude each other"));
  }
  const unsigned long entries = line.number("entries", 5, 1);
  if (line.has("seed")) RegressionRandomForestAlgorithm::setSeed(line.number("seed", 0, 0));
  project.loadLatestResults(scenario);
  priority->setConfigureRuleElementFromPriorityAddon(addonOf(*scenario, kind, entries));
  const auto made = AutomatedScenarioBuilder::makeRuleScenarioFromPriority(
      *priority, [](long, long) { return !Interrupt::requested(); });
  if (!made) return exitCancelled;
  const bool learned = kind != ConfigureRuleElementType::defaultSerie;
  if (learned && line.has("best-entries")) {
    MachineLearningRegressionColVolumesReleaseRuleNumberOfEntriesOfAverageOptimizer::make(
        *made, MachineLearningAlgorithmValidatorType::kFoldCrossValidation, kTrainPercent,
        static_cast<uint32_t>(line.number("best-entries", 1, 1)));
  }
  project.adopt(made);
  OptimisationRun::storeOutput(project, tr("scenario {1}", {name}));
  console.out << tr("{1}: made from the stored run of \"{2}\" and saved",
                    {name, scenario->getName()})
              << '\n';
  if (learned) printErrors(*made, console);
  return exitOk;
}
