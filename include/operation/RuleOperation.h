#pragma once

#include "operation/OperationSystem.h"

// One period of a rule simulation: each reservoir releases what its rule asks, within what it
// holds, and every node shares its water among its outgoing links by its allocation matrix.
class RuleOperation : public OperationSystem {
 public:
  using OperationSystem::OperationSystem;

  double release(const std::shared_ptr<Link>& link) override;
  // The upstream reservoir's "Vazão vertida" at the current date, m³/s.
  double spill(const std::shared_ptr<Link>& link) override;
  void postProcessing(const Callback& callback) override;
  // Throws NetworkUtils::LoopException when a network with bidirectional links has a loop.
  void runModel() override;

  // Tells each reservoir's rule the interval and window of the run.
  void configureRuleReservoirs();
  // Each enabled demand's target for the date ("Demanda meta") is its input demand.
  void writeRuleSeries();
};
