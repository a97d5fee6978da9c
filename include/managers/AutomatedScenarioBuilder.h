#pragma once

#include <functional>
#include <memory>

class RuleOptimizationScenario;
class RuleScenario;
class Scenario;

// Builds ordinary rule scenarios out of the results of other kinds of run.
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
  // Replaces every optimisable reservoir rule of scenario by the simulation rule it stands for.
  static void convertOptRuleReleaseToRuleRelease(Scenario& scenario);
};
