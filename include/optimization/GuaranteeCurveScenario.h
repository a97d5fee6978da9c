#pragma once

#include <memory>
#include <string>

#include "optimization/ExecutionGuaranteeCurve.h"
#include "scenario/RuleScenario.h"

// The guarantee curve of the reservoirs marked in their settings: a rule simulation whose run
// searches, level by level, the constant release each marked reservoir sustains. A run leaves
// the curve, not result series.
class GuaranteeCurveScenario : public RuleScenario {
 public:
  GuaranteeCurveScenario(unsigned int id, const Interval& interval, const std::string& name);
  // A scenario run by method as it stands, as a project file describes it.
  GuaranteeCurveScenario(const std::shared_ptr<ExecutionGuaranteeCurve>& method, unsigned int id,
                         const Interval& interval, const std::string& name);

  Enum<ScenarioType> getScenarioType() const override;
  // Searches the curve over the scenario's network and clears the result series of the trials.
  bool run(const Progress& progress) override;
  // As run, each trial by isolated networks; the scenario is the manager's current one meanwhile.
  bool runIsolated(const Progress& progress) override;

  ExecutionGuaranteeCurve& getExecutionGuaranteeCurve() const;

 protected:
  std::shared_ptr<Scenario> copySpecific() const override;
  std::shared_ptr<SceneryCheck> makeSceneryCheck() override;

 private:
  bool searchCurve(const Progress& progress, bool isolated);
};
