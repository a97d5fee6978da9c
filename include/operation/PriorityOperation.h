#pragma once

#include <memory>

#include "operation/HydrologicalStateCalculator.h"
#include "operation/NetworkFlow.h"
#include "operation/OperationSystem.h"

// One period of a priority run: the network-flow model of the date decides every link's flow,
// one linear programme per priority, and the common post-processing then sends those flows and
// closes the elements' results. There is no release rule and no spill: what a reservoir sends
// down its natural links is a release the model chose.
class PriorityOperation : public OperationSystem {
 public:
  PriorityOperation(const SettingsManager& settingsManager, const Elements& elements,
                    const Interval& interval,
                    const std::shared_ptr<HydrologicalStateCalculator>& hydrologicalStateCalculator,
                    bool zeroContribution, const Enum<ScenarioType>& scenarioType);

  // The link's flow in the last model of the date, m³/s.
  double release(const std::shared_ptr<Link>& link) override;
  // 0.0: spill is part of what the model releases.
  double spill(const std::shared_ptr<Link>& link) override;
  // Records the priorities and goals in force, then sends the flows and writes the results.
  void postProcessing(const Callback& callback) override;
  // Turns the bidirectional links for the date, solves the model priority by priority and runs
  // the period, then turns the links back. Throws NetworkUtils::LoopException, with the network
  // restored, when the turned network has a loop, and NetworkFlow::NetflowOptimalException when a
  // pass has no optimal solution; the date then has no results and its links stay turned.
  void runModel() override;
  // A new model for the current date, window and interval; it keeps the solver's model of the
  // last date for reuse.
  void setNetworkFlow();

  // Writes, at the current date, each enabled reservoir's "Prioridade" and "Volume meta" and each
  // enabled demand's "Prioridade" and "Demanda meta" (m³/s).
  void writePrioritySerie();
  // Removes the model and solution files of every date of interval under the priorities of the
  // last date solved; files that cannot be removed are left. Does nothing before any model.
  void eraseSimulationFiles(const Interval& interval) const;

  // The model of the last date, or null before the first.
  const std::shared_ptr<NetworkFlow>& getNetworkFlow() const { return networkFlow; }

 protected:
  // The model of the current date, before it takes over the solver of the last one.
  virtual std::shared_ptr<NetworkFlow> makeNetworkFlow();
  const std::shared_ptr<HydrologicalStateCalculator>& getHydrologicalStateCalculator() const {
    return hydrologicalStateCalculator;
  }

 private:
  std::shared_ptr<PrioritySettings> settingsOf(const std::shared_ptr<Element>& element) const;
  double priorityOf(const std::shared_ptr<Element>& element) const;

  std::shared_ptr<NetworkFlow> networkFlow;
  std::shared_ptr<HydrologicalStateCalculator> hydrologicalStateCalculator;
};
