#pragma once

#include <memory>
#include <optional>
#include <string>

#include "common/Date.h"
#include "core/HydrologicalStateConfiguration.h"
#include "core/Scenario.h"
#include "operation/HydrologicalStateCalculator.h"
#include "scenario/ConfigureRuleElementFromPriorityAddon.h"

// An operation by priorities: at each date the network's water goes where a chain of linear
// programmes, one per priority, sends it, the goals being each reservoir's target volume and each
// demand's demand. Every reservoir and demand keeps one pair of priority and goal per
// hydrological state of the scenario's configuration.
class PriorityScenario : public Scenario {
 public:
  PriorityScenario(const std::shared_ptr<ExecutionMethod>& executionMethod, unsigned int id,
                   const Interval& interval, const std::string& name);

  // "Otimizador por prioridades" (0).
  Enum<ScenarioType> getScenarioType() const override;
  // As Scenario::addElement; a reservoir or demand also gets one default pair per state.
  void addElement(const std::shared_ptr<Element>& element, bool rename) override;
  void addElement(const std::shared_ptr<Element>& element, bool rename, unsigned int id) override;
  // Completes a reservoir or demand that was attached without its pairs. Repeated calls for the
  // same element change nothing.
  void posAddElement(const std::shared_ptr<Element>& element, bool store) override;
  // A date whose model has no optimal solution
  // ends the run like a refused one: false, results dropped, the network as it was stored, and
  // the date kept for getInfeasibleDate().
  bool run(const Progress& progress) override;
  bool runIsolated(const Progress& progress) override;
  std::shared_ptr<OperationSystem> getIsolatedOperationSystem(
      unsigned int isolatedScenarioId) override;
  // Scenario::preRun, and under the type "Padrão" every enabled drain asks for 99999.0 m³/s in
  // every state.
  void preRun() override;

  // Appends getNumOfStates() default pairs of priority and goal to the element's settings.
  void initPrioritySeriesOfElementSettings(const std::shared_ptr<Element>& element);

  // The scenario's hydrological states, shared with the caller for editing.
  std::shared_ptr<HydrologicalStateConfiguration> getHydrologicalStateConfiguration()
      const override {
    return hydrologicalStateConfiguration;
  }
  // How the scenario becomes one by rules; the default kind (series of releases) until set.
  const std::shared_ptr<ConfigureRuleElementFromPriorityAddon>&
  getConfigureRuleElementFromPriorityAddon() const {
    return configureRuleElementFromPriorityAddon;
  }
  void setConfigureRuleElementFromPriorityAddon(
      std::shared_ptr<ConfigureRuleElementFromPriorityAddon> addon);
  // The date at which the last run found no optimal solution; empty after any other outcome.
  const std::optional<Date>& getInfeasibleDate() const { return infeasibleDate; }

 protected:
  std::shared_ptr<OperationSystem> getOperationSystem() override;
  std::shared_ptr<Scenario> copySpecific() const override;
  std::shared_ptr<SceneryCheck> makeSceneryCheck() override;
  bool passesSceneryCheck(SceneryCheck& check) override;
  // Also gives the interval to every goal series of the states and zones.
  void setSeriesIntervalsElements() override;
  // Nothing to hand: the operation takes zeroContribution when it is made.
  void configureZeroContribution(const Elements& reservoirs) override;

 private:
  void fillDrainsForStandardStates();
  std::shared_ptr<HydrologicalStateCalculator> makeHydrologicalStateCalculator() const;
  void restoreNetwork();

  std::shared_ptr<HydrologicalStateConfiguration> hydrologicalStateConfiguration;
  std::optional<Date> infeasibleDate;
  std::shared_ptr<ConfigureRuleElementFromPriorityAddon> configureRuleElementFromPriorityAddon;
};
