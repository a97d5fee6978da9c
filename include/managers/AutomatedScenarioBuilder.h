#pragma once

#include <functional>
#include <memory>
#include <string>

#include "vocabulary/EnumTypes.h"

class GuaranteeCurveScenario;
class KOVACoreProgressBar;
class PriorityScenario;
class RuleOptimizationScenario;
class RuleScenario;
class Scenario;

// Builds new scenarios of a project out of others: rule scenarios out of the results of other
// kinds of run, and a scenario of any kind out of one of another kind.
class AutomatedScenarioBuilder {
 public:
  using Progress = std::function<bool(long, long)>;

  // The rule scenario of row solutionLineIndex of the optimisation's front, named
  // "<source>-SOL-<row>": a continuous run over the same interval and network whose optimisable
  // rules are the simulation rules of that row's decision variables. It is stored in the open
  // project database. Throws std::invalid_argument "AutomatedScenarioBuilder::
  // makeRuleScenarioFromOptimization: solutionLineIndex out of range of solutionMatrix" for a
  // row the front does not have; null when progress cancelled it (five steps).
  static std::shared_ptr<RuleScenario> makeRuleScenarioFromOptimization(
      const RuleOptimizationScenario& scenario, unsigned int solutionLineIndex,
      const Progress& progress);
  // The rule scenario of row of the guarantee curve, named "<source>-GUA-<row>": a continuous run
  // over the same interval and network in which each reservoir of the curve releases its flow of
  // that row, constantly. It is stored in the open project database. Throws std::invalid_argument
  // "AutomatedScenarioBuilder::makeRuleScenarioFromGuaranteeCurve: row out of range of the curve"
  // for a row the curve does not have; null when progress cancelled it (four steps).
  static std::shared_ptr<RuleScenario> makeRuleScenarioFromGuaranteeCurve(
      const GuaranteeCurveScenario& scenario, unsigned int row, const Progress& progress);
  // The rule scenario that imitates the stored run of the scenario by priorities, named
  // "<source>-rule-<kind>": a continuous run over the same interval and network in which each
  // reservoir gets the rule of the kind of the scenario's addon (a series of the run's releases,
  // or a model trained on the run) and each node the allocation its links carried. It is stored in
  // the open project database. Null when progress cancelled it (one step per element and three).
  static std::shared_ptr<RuleScenario> makeRuleScenarioFromPriority(
      const PriorityScenario& scenario, const Progress& progress);
  // The scenario of kind `to` that source becomes (see SceneryKindTransformation), named name. It
  // is stored in the open project database. Throws std::invalid_argument as
  // SceneryTransformationFactory::make for a source already of kind `to`; null when progress
  // cancelled it (three steps).
  static std::shared_ptr<Scenario> makeScenarioOfKind(const Scenario& source, ScenarioType to,
                                                      const std::string& name,
                                                      const Progress& progress);
  // Replaces every optimisable reservoir rule of scenario by the simulation rule it stands for.
  static void convertOptRuleReleaseToRuleRelease(Scenario& scenario);

 private:
  // A continuous rule scenario with source's network and interval, named source's name + suffix.
  static std::shared_ptr<RuleScenario> continuousCopy(const Scenario& source,
                                                      const std::string& suffix);
  // Stores scenario in the open project database; false when bar is cancelled.
  static bool store(const std::shared_ptr<Scenario>& scenario, KOVACoreProgressBar& bar);
};
