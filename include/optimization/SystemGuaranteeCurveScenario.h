#pragma once

#include <memory>
#include <string>

#include "optimization/ExecutionSystemGuaranteeCurve.h"
#include "optimization/SwarmScenario.h"

// The guarantee curve of a system of reservoirs: a rule simulation whose run is one swarm per
// level over the optimisable rules, with a constant optimisable rule on the out reservoir. A run
// leaves the curve, not result series. A new scenario searches with a single-objective swarm of
// one particle and one iteration.
class SystemGuaranteeCurveScenario : public SwarmScenario {
 public:
  SystemGuaranteeCurveScenario(unsigned int id, const Interval& interval, const std::string& name);
  // A scenario run by method as it stands, as a project file describes it.
  SystemGuaranteeCurveScenario(const std::shared_ptr<ExecutionSystemGuaranteeCurve>& method,
                               unsigned int id, const Interval& interval, const std::string& name);

  Enum<ScenarioType> getScenarioType() const override;
  // Searches the curve over the scenario's network and clears the result series of the trials.
  bool run(const Progress& progress) override;

  ExecutionSystemGuaranteeCurve& getExecutionSystemGuaranteeCurve() const;
  // The last enabled reservoir of the network, downstream first by level order, becomes the out
  // reservoir; without an enabled reservoir the out reservoir is left as it was.
  void setAutoOutReservoir();

 protected:
  std::shared_ptr<Scenario> copySpecific() const override;
  std::shared_ptr<SceneryCheck> makeSceneryCheck() override;
};
