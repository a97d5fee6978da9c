#include "optimization/SceneryKindTransformation.h"

#include <functional>
#include <map>
#include <set>
#include <stdexcept>
#include <string>

#include "common/NumericalUtils.h"
#include "common/PeriodWalker.h"
#include "core/ElementSets.h"
#include "core/ElementsFilter.h"
#include "core/Link.h"
#include "core/Node.h"
#include "core/PriorityReservoirSettings.h"
#include "core/ReservoirGuaranteeCurveSettings.h"
#include "operation/ExecutionContinuous.h"
#include "optimization/GuaranteeCurveScenario.h"
#include "optimization/RuleOptimizationScenario.h"
#include "optimization/SystemGuaranteeCurveScenario.h"
#include "rules/ConstReleaseRule.h"
#include "rules/OptConstReleaseRule.h"
#include "rules/OptReleaseRule.h"
#include "rules/OptReleaseRuleTwinFactory.h"
#include "scenario/PriorityRunAllocation.h"
#include "scenario/PriorityScenario.h"
#include "scenario/RuleScenario.h"
#include "vocabulary/Vocabulary.h"

namespace {

using Maker = std::function<std::shared_ptr<Scenario>(const Scenario&, unsigned int)>;

constexpr double kLeastMaxRelease = 1.0;  // m³/s

bool isPriority(ScenarioType type) { return type == ScenarioType::priorityOptimizer; }

bool leavesReleasesToASwarm(ScenarioType type) {
  return type == ScenarioType::ruleOptimizer || type == ScenarioType::systemGuaranteeCurve;
}

bool zeroContributionOf(const Scenario& source) {
  return source.getExecutionMethod()->getZeroContribution();
}

// A rule or priority run keeps the source's own method when it is one of theirs.
std::shared_ptr<ExecutionMethod> simulationMethod(const Scenario& source) {
  const auto type = source.getExecutionMethod()->getExecutionType().getType();
  if (type == ExecutionType::continuous || type == ExecutionType::windowed) {
    return source.getExecutionMethod()->copy();
  }
  auto method = std::make_shared<ExecutionContinuous>();
  method->setZeroContribution(zeroContributionOf(source));
  return method;
}

template <class Kind>
Maker simulationKind() {
  return [](const Scenario& source, unsigned int id) -> std::shared_ptr<Scenario> {
    return std::make_shared<Kind>(simulationMethod(source), id, source.getInterval(),
                                  source.getName());
  };
}

template <class Kind>
Maker searchKind() {
  return [](const Scenario& source, unsigned int id) -> std::shared_ptr<Scenario> {
    auto target = std::make_shared<Kind>(id, source.getInterval(), source.getName());
    target->getExecutionMethod()->setZeroContribution(zeroContributionOf(source));
    return target;
  };
}

const std::map<ScenarioType, Maker>& makers() {
  static const std::map<ScenarioType, Maker> table = {
      {ScenarioType::priorityOptimizer, simulationKind<PriorityScenario>()},
      {ScenarioType::ruleSimulator, simulationKind<RuleScenario>()},
      {ScenarioType::ruleOptimizer, searchKind<RuleOptimizationScenario>()},
      {ScenarioType::guaranteeCurve, searchKind<GuaranteeCurveScenario>()},
      {ScenarioType::systemGuaranteeCurve, searchKind<SystemGuaranteeCurveScenario>()},
  };
  return table;
}

std::string kindName(ScenarioType type) { return Vocabulary::of(type).getName(); }

Scenario::Elements reservoirsOf(const Scenario& scenario) {
  return ElementsFilter::filterByType(scenario.getSortedElements(), ElementSets::reservoir());
}

std::shared_ptr<ReservoirRuleSettings> ruleSettingsOf(const std::shared_ptr<Element>& reservoir,
                                                      const Scenario& scenario) {
  return Scenario::getSettings<ReservoirRuleSettings>(reservoir, scenario.getSettingsManager());
}

// The mean of the values of serie on the dates of interval, missing values left out; 0 without
// any.
double meanOver(const Serie& serie, const Interval& interval) {
  double sum = 0.0;
  unsigned int count = 0;
  PeriodWalker::forEach(interval, [&](const Date& date) {
    const double value = serie.getValue(date);
    if (NumericalUtils::isEmpty(value)) return;
    sum += value;
    ++count;
  });
  return count == 0 ? 0.0 : sum / count;
}

double meanNaturalInflow(const Node& node, const Interval& interval) {
  const auto& inputs = node.getInputSeries();
  if (!inputs || !inputs->hasSerie(SerieType::naturalIncrementalFlow)) return 0.0;
  return meanOver(*inputs->getSerie(SerieType::naturalIncrementalFlow), interval);
}

// A source without results runs, as a copy, so that its releases and flows can be read.
std::shared_ptr<Scenario> runCopy(const Scenario& source) {
  auto run = source.copy();
  if (!run->run(nullptr)) {
    throw std::runtime_error(
        "SceneryKindTransformation::transform(): the scenario by priorities \"" + source.getName() +
        "\" has no results and did not run: " + run->getSceneryStatus().getName());
  }
  return run;
}

double meanRelease(const Element& reservoir, const Interval& interval) {
  const auto& outputs = reservoir.getOutputSeries();
  if (outputs.empty() || !outputs.front()->hasSerie(SerieType::releasedFlow)) return 0.0;
  return meanOver(*outputs.front()->getSerie(SerieType::releasedFlow), interval);
}

// Each reservoir releases its mean release of the run, constantly, and each node shares its
// outflow as its links carried it in the run.
void settingsFromPriorityRun(const Scenario& source, Scenario& target) {
  const auto copy = source.hasResults() ? nullptr : runCopy(source);
  const Scenario& run = copy ? *copy : source;
  target.remakeSettings();
  for (const auto& element : target.getSortedElements()) {
    const auto node = std::dynamic_pointer_cast<Node>(element);
    if (!node) continue;
    const auto& ran = static_cast<const Node&>(*run.getElement(node->getId()));
    if (!node->getDownstreamLinks().empty()) {
      Scenario::getSettings<RuleSettings>(element, target.getSettingsManager())
          ->setAllocation(PriorityRunAllocation::matrixOf(ran, run));
    }
    if (node->getType() == ElementType::reservoir) {
      auto rule = std::make_shared<ConstReleaseRule>();
      rule->setRelease(meanRelease(ran, run.getInterval()));
      ruleSettingsOf(element, target)->setRule(rule);
    }
  }
}

// A reservoir's target volume is a goal of a priority run that rules never read: where the
// source left it empty, the reservoir asks to be full, as a new state of a priority scenario does.
void giveTargetVolumes(Scenario& target) {
  for (const auto& reservoir : reservoirsOf(target)) {
    const double full =
        Scenario::getSettings<PriorityReservoirSettings>(reservoir, target.getSettingsManager())
            ->getDefaultSerieValue();
    auto& goal = *reservoir->getInputSerie(SerieType::targetVolume);
    PeriodWalker::forEach(target.getInterval(), [&](const Date& date) {
      if (NumericalUtils::isEmpty(goal.getValue(date))) goal.setValue(date, full);
    });
  }
}

// The reservoirs' settings become those of the target's kind, with the same allocation and rule;
// the other elements' settings are the same in every rule kind.
void retypeReservoirSettings(Scenario& target) {
  auto& settings = target.getSettingsManager();
  for (const auto& reservoir : reservoirsOf(target)) {
    const auto old = ruleSettingsOf(reservoir, target);
    settings.make(reservoir->getId(), target.getScenarioType(), reservoir->getElementType());
    ruleSettingsOf(reservoir, target)->ReservoirRuleSettings::copyFrom(old);
  }
}

bool hasTwin(const ReleaseRule& rule) {
  static const std::set<ReleaseRuleType> learned = {ReleaseRuleType::knnRegression,
                                                    ReleaseRuleType::regressionTree,
                                                    ReleaseRuleType::randomForest};
  return learned.count(rule.getType().getType()) == 0;
}

void adaptRules(Scenario& target, bool toASwarm) {
  for (const auto& reservoir : reservoirsOf(target)) {
    const auto settings = ruleSettingsOf(reservoir, target);
    const auto& rule = settings->getRule();
    if (!rule) continue;
    const auto* optimisable = dynamic_cast<const OptReleaseRule*>(rule.get());
    if (toASwarm && !optimisable && hasTwin(*rule)) {
      settings->setRule(OptReleaseRuleTwinFactory::make(
          *rule, SceneryKindTransformation::maxReleaseOf(static_cast<const Node&>(*reservoir),
                                                         target.getInterval())));
    } else if (!toASwarm && optimisable) {
      settings->setRule(optimisable->convertToReleaseRule());
    }
  }
}

std::shared_ptr<ReservoirGuaranteeCurveSettings> curveSettingsOf(
    const std::shared_ptr<Element>& reservoir, const Scenario& scenario) {
  return Scenario::getSettings<ReservoirGuaranteeCurveSettings>(reservoir,
                                                                scenario.getSettingsManager());
}

void askForTheCurves(const Scenario& source, GuaranteeCurveScenario& target) {
  const auto* system = dynamic_cast<const SystemGuaranteeCurveScenario*>(&source);
  for (const auto& reservoir : reservoirsOf(target)) {
    const bool marked =
        system ? reservoir->getId() ==
                     system->getExecutionSystemGuaranteeCurve().getOutSystemReservoirId()
               : reservoir->isEnabled();
    curveSettingsOf(reservoir, target)->setIsGuaranteeCurve(marked);
  }
  if (system) {
    target.getExecutionGuaranteeCurve().setOnlyQ90(
        system->getExecutionSystemGuaranteeCurve().isOnlyQ90());
  }
}

void askForTheSystemCurve(const Scenario& source, SystemGuaranteeCurveScenario& target) {
  auto& execution = target.getExecutionSystemGuaranteeCurve();
  target.setAutoOutReservoir();
  if (const auto* curve = dynamic_cast<const GuaranteeCurveScenario*>(&source)) {
    Scenario::Elements marked;
    for (const auto& reservoir : reservoirsOf(source)) {
      if (curveSettingsOf(reservoir, source)->getIsGuaranteeCurve()) marked.push_back(reservoir);
    }
    if (marked.size() == 1) execution.setOutSystemReservoirId(marked.front()->getId());
    execution.setOnlyQ90(curve->getExecutionGuaranteeCurve().isOnlyQ90());
  }
  const auto reservoirs = reservoirsOf(target);
  if (reservoirs.empty()) return;
  const auto out = target.getElement(execution.getOutSystemReservoirId());
  auto release = std::make_shared<OptConstReleaseRule>();
  release->setLowerAndUpperRelease(0.0, SceneryKindTransformation::maxReleaseOf(
                                            static_cast<const Node&>(*out), target.getInterval()));
  release->setToOpt(true);
  ruleSettingsOf(out, target)->setRule(release);
}

void finish(const Scenario& source, Scenario& target) {
  if (auto* curve = dynamic_cast<GuaranteeCurveScenario*>(&target)) {
    askForTheCurves(source, *curve);
  } else if (auto* system = dynamic_cast<SystemGuaranteeCurveScenario*>(&target)) {
    askForTheSystemCurve(source, *system);
  }
}

}  // namespace

SceneryKindTransformation::SceneryKindTransformation(ScenarioType from, ScenarioType to)
    : from(from), to(to) {
  if (from == to) {
    throw std::invalid_argument(
        "SceneryKindTransformation: a scenario does not become a scenario of its own kind");
  }
}

std::shared_ptr<Scenario> SceneryKindTransformation::transform(const Scenario& source,
                                                               unsigned int id) const {
  if (source.getScenarioType().getType() != from) {
    throw std::invalid_argument(
        "SceneryKindTransformation::transform(): the scenario is not of "
        "kind " +
        kindName(from));
  }
  auto target = makers().at(to)(source, id);
  source.copyNetworkInto(*target);
  if (isPriority(to)) {
    target->remakeSettings();
    giveTargetVolumes(*target);
  } else {
    if (isPriority(from)) {
      settingsFromPriorityRun(source, *target);
    } else {
      retypeReservoirSettings(*target);
    }
    adaptRules(*target, leavesReleasesToASwarm(to));
    finish(source, *target);
  }
  target->resolveRuleReferences();
  target->clearAllResults();
  return target;
}

double SceneryKindTransformation::maxReleaseOf(const Node& reservoir, const Interval& interval) {
  std::set<unsigned int> seen = {reservoir.getId()};
  std::vector<const Node*> waiting = {&reservoir};
  double inflow = 0.0;
  while (!waiting.empty()) {
    const Node* node = waiting.back();
    waiting.pop_back();
    inflow += meanNaturalInflow(*node, interval);
    for (const auto& link : node->getUpstreamLinks()) {
      const auto upstream = link->getUpstream();
      if (link->isEnabled() && upstream->isEnabled() && seen.insert(upstream->getId()).second) {
        waiting.push_back(upstream.get());
      }
    }
  }
  return std::max(2.0 * inflow, kLeastMaxRelease);
}
